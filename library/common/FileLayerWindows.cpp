// The file layer on Windows.
#define WIN32_LEAN_AND_MEAN
#include <algorithm>
#include <array>
#include <utility>
#include <windows.h>

#include "common/DateText.h"
#include "common/FileLayer.h"
#include "common/FileLayerParts.h"
#include "common/Host.h"
#include "common/PutAside.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : m_handle(handle) {}
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() { Close(); }

  explicit operator bool() const { return m_handle != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return m_handle; }
  void Swap(FileHandle& other) { std::swap(m_handle, other.m_handle); }
  void Close() {
    if (m_handle != INVALID_HANDLE_VALUE) ::CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE m_handle;
};

HANDLE Open(const fs::path& path, DWORD access, DWORD creation) {
  return ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, creation,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

ErrorNumber NumberOf(DWORD cause, const fs::path& native) {
  std::error_code failure;
  switch (cause) {
    case ERROR_FILE_NOT_FOUND:
      return fs::is_directory(native.parent_path(), failure) ? ErrorNumber::FileNotFound
                                                             : ErrorNumber::PathNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_DIRECTORY:
      return ErrorNumber::PathNotFound;
    case ERROR_ACCESS_DENIED:
      return fs::is_directory(native, failure) ? ErrorNumber::PathFileAccess : ErrorNumber::PermissionDenied;
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return ErrorNumber::PermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ErrorNumber::DiskFull;
    case ERROR_CRC:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
      return ErrorNumber::DeviceIO;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

[[noreturn]] void Raise(DWORD cause, const std::string& path, const fs::path& native) {
  RaiseFileError(NumberOf(cause, native), path);
}

FileState StateOf(HANDLE handle) {
  BY_HANDLE_FILE_INFORMATION about{};
  if (!::GetFileInformationByHandle(handle, &about)) return {};
  const auto whole = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
  return {about.dwVolumeSerialNumber, whole(about.nFileIndexHigh, about.nFileIndexLow),
          static_cast<std::int64_t>(whole(about.nFileSizeHigh, about.nFileSizeLow)),
          static_cast<std::int64_t>(
              whole(about.ftLastWriteTime.dwHighDateTime, about.ftLastWriteTime.dwLowDateTime))};
}

/// ERROR_SUCCESS, or the error that stopped the writing.
DWORD WriteAll(HANDLE handle, std::string_view content) {
  while (!content.empty()) {
    const auto part = static_cast<DWORD>(std::min<std::size_t>(content.size(), 1u << 20));
    DWORD written = 0;
    if (!::WriteFile(handle, content.data(), part, &written, nullptr)) return ::GetLastError();
    content.remove_prefix(written);
  }
  return ERROR_SUCCESS;
}

DWORD Flush(HANDLE handle, Durability durability) {
  if (durability == Durability::Flushed && !::FlushFileBuffers(handle)) return ::GetLastError();
  return ERROR_SUCCESS;
}

DWORD WriteTemporary(const fs::path& path, std::string_view content, Durability durability) {
  const FileHandle handle(Open(path, GENERIC_WRITE, CREATE_NEW));
  if (!handle) return ::GetLastError();
  const DWORD cause = WriteAll(handle.Get(), content);
  return cause == ERROR_SUCCESS ? Flush(handle.Get(), durability) : cause;
}

bool ToBegin(HANDLE handle) {
  return ::SetFilePointerEx(handle, LARGE_INTEGER{}, nullptr, FILE_BEGIN);
}

bool EndAt(HANDLE handle, LONGLONG length) {
  LARGE_INTEGER end{};
  end.QuadPart = length;
  return ::SetFilePointerEx(handle, end, nullptr, FILE_BEGIN) && ::SetEndOfFile(handle);
}

/// Both files are taken from their first byte on.
DWORD CopyContent(HANDLE from, HANDLE to) {
  if (!ToBegin(from) || !ToBegin(to)) return ::GetLastError();
  std::array<char, 65536> part;
  for (;;) {
    DWORD got = 0;
    if (!::ReadFile(from, part.data(), static_cast<DWORD>(part.size()), &got, nullptr))
      return ::GetLastError();
    if (got == 0) return ERROR_SUCCESS;
    if (const DWORD cause = WriteAll(to, {part.data(), got})) return cause;
  }
}

/// The old content of a file that is written in place. Nobody else can open the copy while it is held.
struct Copy {
  FileHandle handle{INVALID_HANDLE_VALUE};
  fs::path path;

  DWORD MakeIn(const fs::path& folder, const std::string& name, HANDLE content, Durability durability) {
    const fs::path temporary = TemporaryPath(folder);
    FileHandle made(::CreateFileW(temporary.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_DELETE,
                                  nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!made) return ::GetLastError();
    DWORD cause = CopyContent(content, made.Get());
    if (cause == ERROR_SUCCESS) cause = Flush(made.Get(), durability);
    // Only a whole copy gets the name by which it is found.
    path = folder / name;
    if (cause == ERROR_SUCCESS && !::MoveFileExW(temporary.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH))
      cause = ::GetLastError();
    if (cause == ERROR_SUCCESS)
      handle.Swap(made);
    else
      ::DeleteFileW(temporary.c_str());
    return cause;
  }
};

/// Writes from the first byte on and cuts what stood behind. What stood there is put aside until the new
/// content is whole, and comes back if the writing fails.
DWORD WriteInPlace(const fs::path& target, std::string_view content, Durability durability) {
  const FileHandle file(Open(target, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING));
  LARGE_INTEGER before{};
  if (!file || !::GetFileSizeEx(file.Get(), &before)) return ::GetLastError();
  Copy copy;
  DWORD cause = ERROR_PATH_NOT_FOUND;
  for (const fs::path& folder : PutAsideFolders()) {
    cause = copy.MakeIn(folder, PutAsideName(target, StateOf(file.Get())), file.Get(), durability);
    if (cause == ERROR_SUCCESS) break;
  }
  if (cause != ERROR_SUCCESS) return cause;
  const auto length = static_cast<LONGLONG>(content.size());
  // A file that grows gets its room first.
  if (length > before.QuadPart && !EndAt(file.Get(), length)) cause = ::GetLastError();
  if (cause == ERROR_SUCCESS && !ToBegin(file.Get())) cause = ::GetLastError();
  if (cause == ERROR_SUCCESS) cause = WriteAll(file.Get(), content);
  if (cause == ERROR_SUCCESS && !EndAt(file.Get(), length)) cause = ::GetLastError();
  if (cause == ERROR_SUCCESS) cause = Flush(file.Get(), durability);
  const bool restored = cause != ERROR_SUCCESS &&
                        CopyContent(copy.handle.Get(), file.Get()) == ERROR_SUCCESS &&
                        EndAt(file.Get(), before.QuadPart);
  copy.handle.Close();
  if (cause == ERROR_SUCCESS || restored) ::DeleteFileW(copy.path.c_str());
  return cause;
}

/// Puts the temporary file in the target's place, with the target's attributes and rights if there is one. A
/// file system that has none can only rename.
DWORD Replace(const fs::path& target, const fs::path& temporary, bool present) {
  if (present) {
    if (::ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr)) return ERROR_SUCCESS;
    const DWORD cause = ::GetLastError();
    if (cause != ERROR_INVALID_FUNCTION && cause != ERROR_NOT_SUPPORTED &&
        cause != ERROR_CALL_NOT_IMPLEMENTED)
      return cause;
  }
  constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  return ::MoveFileExW(temporary.c_str(), target.c_str(), how) ? ERROR_SUCCESS : ::GetLastError();
}

/// The folder takes no new file, or another program holds the target open in a way that bars its replacing.
bool ReplacingBarred(DWORD cause) {
  return cause == ERROR_ACCESS_DENIED || cause == ERROR_SHARING_VIOLATION ||
         cause == ERROR_USER_MAPPED_FILE || cause == ERROR_UNABLE_TO_REMOVE_REPLACED ||
         cause == ERROR_UNABLE_TO_MOVE_REPLACEMENT;
}

/// Hard links, which stay names of the file.
bool HasOtherNames(HANDLE handle) {
  BY_HANDLE_FILE_INFORMATION about{};
  return ::GetFileInformationByHandle(handle, &about) && about.nNumberOfLinks > 1;
}

}  // namespace

// The folders of settings and temporary files are their user's own here.
bool IsOwnPlainFile(const fs::path& file) {
  std::error_code failure;
  return fs::is_regular_file(fs::symlink_status(file, failure));
}

bool IsLeftCopy(const fs::path& copy) {
  return IsOwnPlainFile(copy) && FileHandle(Open(copy, GENERIC_READ, OPEN_EXISTING));
}

FileState StateOfFile(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) return {};
  const FileHandle handle(::CreateFileW(TextPath(NativePath(path)).c_str(), FILE_READ_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  return handle ? StateOf(handle.Get()) : FileState();
}

std::string ReadWholeFile(const std::string& path, FileState* state) {
  const fs::path native = UsableNativePath(path);
  const FileHandle handle(::CreateFileW(native.c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER size{};
  if (!handle || !::GetFileSizeEx(handle.Get(), &size)) Raise(::GetLastError(), path, native);
  RefuseLargeFile(static_cast<std::size_t>(size.QuadPart), path);
  if (state != nullptr) *state = StateOf(handle.Get());
  std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t length = 0;
  while (length < content.size()) {
    DWORD got = 0;
    if (!::ReadFile(handle.Get(), content.data() + length, static_cast<DWORD>(content.size() - length), &got,
                    nullptr))
      Raise(::GetLastError(), path, native);
    if (got == 0) break;
    length += got;
  }
  content.resize(length);
  return content;
}

FileState WriteWholeFile(const std::string& path, std::string_view content, Durability durability) {
  const fs::path target = FollowLinks(UsableNativePath(path));
  FileHandle probe(Open(target, GENERIC_WRITE, OPEN_EXISTING));
  const bool present = static_cast<bool>(probe);
  if (!present && ::GetLastError() != ERROR_FILE_NOT_FOUND) Raise(::GetLastError(), path, target);
  // A rename over a protected file isn't refused everywhere.
  if (present && (::GetFileAttributesW(target.c_str()) & FILE_ATTRIBUTE_READONLY) != 0)
    Raise(ERROR_ACCESS_DENIED, path, target);
  if (present && ::GetFileType(probe.Get()) != FILE_TYPE_DISK) RaiseNoPlainFile(path);
  const bool otherNames = present && HasOtherNames(probe.Get());
  probe.Close();

  SweepTemporaries(target.parent_path());
  const fs::path temporary = TemporaryPath(target.parent_path());
  DWORD cause = ERROR_SUCCESS;
  if (!otherNames) {
    cause = WriteTemporary(temporary, content, durability);
    if (cause == ERROR_SUCCESS) cause = Replace(target, temporary, present);
    if (cause != ERROR_SUCCESS) ::DeleteFileW(temporary.c_str());
  }
  if (otherNames || (present && ReplacingBarred(cause))) cause = WriteInPlace(target, content, durability);
  if (cause != ERROR_SUCCESS) Raise(cause, path, target);
  // Asked for by name: the replacement takes over some of the earlier file's marks.
  return StateOfFile(path);
}

bool TruncateFile(const std::string& path, std::size_t length) {
  if (path.empty() || path.find('\0') != std::string::npos) return false;
  const FileHandle handle(Open(UsableNativePath(path), GENERIC_WRITE, OPEN_EXISTING));
  LARGE_INTEGER end{};
  end.QuadPart = static_cast<LONGLONG>(length);
  return handle && ::SetFilePointerEx(handle.Get(), end, nullptr, FILE_BEGIN) && ::SetEndOfFile(handle.Get());
}

std::string ProgramFolder() {
  std::wstring path(32768, L'\0');
  path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return PathText(fs::path(path).parent_path());
}

double LocalTime() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return ToOleDate({now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond});
}

}  // namespace orve
