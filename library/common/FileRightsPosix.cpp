// Who can read and write a file that takes the place of another one, on POSIX systems.
#include <string>
#include <sys/stat.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

#include "common/PosixFile.h"

namespace orve {

namespace {

constexpr mode_t AllRights = 07777;
constexpr mode_t PlainRights = 0777;

#ifdef __linux__

constexpr const char* AccessList = "system.posix_acl_access";
constexpr std::string_view UserAttributes = "user.";

bool NoAttributesHere(int cause) {
  return cause == ENOTSUP || cause == ENODATA || cause == ENOSYS;
}

/// 0, or the error. An attribute that isn't there is taken from the new file too.
int CopyAttribute(int from, int to, const char* name) {
  std::string value;
  ssize_t length = ::fgetxattr(from, name, nullptr, 0);
  if (length >= 0) {
    value.resize(static_cast<std::size_t>(length));
    length = ::fgetxattr(from, name, value.data(), value.size());
  }
  if (length >= 0)
    return ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(length), 0) == 0 ? 0 : errno;
  if (!NoAttributesHere(errno)) return errno;
  return ::fremovexattr(to, name) == 0 || NoAttributesHere(errno) ? 0 : errno;
}

int CopyUserAttributes(int from, int to) {
  const ssize_t length = ::flistxattr(from, nullptr, 0);
  if (length < 0) return NoAttributesHere(errno) ? 0 : errno;
  std::string names(static_cast<std::size_t>(length), '\0');
  const ssize_t listed = ::flistxattr(from, names.data(), names.size());
  if (listed < 0) return errno;
  names.resize(static_cast<std::size_t>(listed));
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* name = names.c_str() + at;
    if (!std::string_view(name).starts_with(UserAttributes)) continue;
    if (const int cause = CopyAttribute(from, to, name)) return cause;
  }
  return 0;
}

int CopyAccessList(int from, int to) {
  return CopyAttribute(from, to, AccessList);
}

bool HasAccessList(int fd) {
  return ::fgetxattr(fd, AccessList, nullptr, 0) > 0;
}

#else

int CopyUserAttributes(int /*from*/, int /*to*/) {
  return 0;
}
int CopyAccessList(int /*from*/, int /*to*/) {
  return 0;
}
bool HasAccessList(int /*fd*/) {
  return false;
}

#endif

/// An owner who can't stay owner reads and writes on as one of the group.
bool OwnerCanDoWithout(const struct stat& present) {
  constexpr mode_t readAndWrite = 6;
  return ((present.st_mode >> 6) & ~(present.st_mode >> 3) & readAndWrite) == 0;
}

}  // namespace

bool RightsCannotBeKept(int cause) {
  return cause == EPERM || cause == EACCES || cause == ENOTSUP || cause == E2BIG || cause == ERANGE ||
         cause == EINVAL;
}

int TakeRights(int presentFile, const struct stat& present, int newFile) {
  struct stat made {};
  if (::fstat(newFile, &made) != 0) return errno;
  const bool ownerKept =
      made.st_uid == present.st_uid || ::fchown(newFile, present.st_uid, static_cast<gid_t>(-1)) == 0;
  if (!ownerKept && (HasAccessList(presentFile) || !OwnerCanDoWithout(present))) return EPERM;
  if (made.st_gid != present.st_gid && ::fchown(newFile, static_cast<uid_t>(-1), present.st_gid) != 0)
    return errno;
  if (const int cause = CopyUserAttributes(presentFile, newFile)) return cause;
  if (const int cause = CopyAccessList(presentFile, newFile)) return cause;
  const mode_t kept = present.st_mode & (ownerKept ? AllRights : PlainRights);
  if (::fstat(newFile, &made) == 0 && (made.st_mode & AllRights) == kept) return 0;
  return ::fchmod(newFile, kept) == 0 ? 0 : errno;
}

}  // namespace orve
