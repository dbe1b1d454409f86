#include "OpenCase.h"

#include <BuiltInEngines.h>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "CaseTextCheck.h"
#include "Failure.h"
#include "Files.h"

namespace windcase {

namespace {

constexpr const char* kFirstSection = "[WindLoadCase]";
constexpr std::size_t kMostFaultsShown = 10;

std::vector<std::string> FaultLines(const std::vector<CaseTextFault>& faults, const std::string& shownName) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < faults.size() && i < kMostFaultsShown; ++i)
    lines.push_back(shownName + ", line " + std::to_string(faults[i].line) + " " + faults[i].text);
  if (faults.size() > kMostFaultsShown)
    lines.push_back("and " + std::to_string(faults.size() - kMostFaultsShown) + " more lines");
  return lines;
}

// The library reads by the letter: what it would lose is known only from the text.
void RequireReadable(const std::string& bytes, const std::string& shownName, DamagedText damaged) {
  const std::vector<CaseTextFault> faults = CheckCaseText(bytes);
  if (faults.empty()) return;
  const std::string advice =
      "lines of this file would be lost; \"windcase repair " + shownName + "\" writes it as they are meant";
  std::string text;
  for (const std::string& line : FaultLines(faults, shownName)) {
    if (damaged == DamagedText::Warn) std::cerr << "warning: " << line << "\n";
    text += line + "\n";
  }
  if (damaged == DamagedText::Refuse) throw Failure(ExitCode::File, text + advice);
  std::cerr << "warning: " << advice << "\n";
}

}  // namespace

OpenCase::OpenCase(const std::filesystem::path& settingsFolder) {
  orve::Host().LibraryFolder = [folder = settingsFolder.string()] { return folder; };
  orve::RegisterBuiltInEngines();
  m_case = orve::CreateCurrentCase();
  m_case->Initialize_BreApps();
}

OpenCase::~OpenCase() {
  orve::Host().LibraryFolder = nullptr;
}

// A case that couldn't be opened is left dirty, and its unsaved values would stop the next opening.
void OpenCase::Open(const std::string& path, DamagedText damaged) {
  const std::string name = ResolvedName(path);
  RequireReadable(ReadCaseFile(path), path, damaged);
  m_case->IsDirty(false);
  try {
    if (!m_case->OpenExisting(name)) throw Failure(ExitCode::File, "There is no file " + path);
  } catch (const orve::Error& error) {
    throw Failure(ExitCode::File,
                  path + ": " + error.what() + " (error " + std::to_string(error.Number()) + ")");
  }
}

void OpenCase::Save() {
  if (orve::CaseFileChanged())
    throw Failure(ExitCode::File, orve::NativePath(m_case->Location()) +
                                      " was changed by another program meanwhile; nothing is saved");
  m_case->Save();
}

void OpenCase::SaveAs(const std::string& path) {
  m_case->Location(ResolvedName(path));
  m_case->Save();
}

// The library opens any text as a case, with the values of a new one for what isn't there.
std::string ReadCaseFile(const std::string& path) {
  std::string bytes = ReadPlainFile(path);
  if (bytes.find(kFirstSection) == std::string::npos)
    throw Failure(ExitCode::File, path + " isn't a wind load case: it has no section " + kFirstSection);
  return bytes;
}

}  // namespace windcase
