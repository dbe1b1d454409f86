#include "windspeed/SiteFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/Host.h"
#include "common/NumberText.h"

namespace orve::windspeed {

namespace {

constexpr std::array<std::string_view, kSectorValues> kSectorKeys = {
    "CrestHeight_Z",        "SiteLocation_X",        "UpwindLength_LU", "DownwindLength_LD", "BaseAltitude",
    "ObstructionHeight_Ho", "ObstructionSpacing_Xo", "FetchesToSea",    "FetchesInTown"};
constexpr std::string_view kSiteSection = "Site";
constexpr std::string_view kSectorSection = "Sector ";

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

bool SameName(std::string_view first, std::string_view second) {
  return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                    [](char a, char b) { return Lower(a) == Lower(b); });
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// A plain file name without a way out of the folder.
bool IsPlainName(const std::string& reference) {
  if (reference.empty() || reference.front() == '.') return false;
  return std::none_of(reference.begin(), reference.end(), [](char letter) {
    return std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos ||
           static_cast<unsigned char>(letter) < ' ';
  });
}

/// Takes the lines of a site file one by one and keeps the first fault.
class Parser {
 public:
  explicit Parser(std::string name) : m_name(std::move(name)) {}

  void Line(std::string_view line) {
    ++m_line;
    line = Trim(line);
    if (line.empty() || line.front() == ';' || !m_file.fault.empty()) return;
    if (line.front() == '[') return Section(line);
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return Fault("", "a line needs a key, \"=\" and a value");
    Key(Trim(line.substr(0, equals)), Trim(line.substr(equals + 1)));
  }

  SiteFile Finish() {
    if (m_file.fault.empty()) FindMissing();
    return std::move(m_file);
  }

 private:
  enum class Where { Nowhere, Site, Sector };

  void Section(std::string_view line) {
    if (line.back() != ']') return Fault("", "a section's name ends in \"]\"");
    const auto name = Trim(line.substr(1, line.size() - 2));
    m_where = Where::Site;
    if (SameName(name, kSiteSection)) return;
    m_where = Where::Sector;
    const auto number = name.size() > kSectorSection.size() ? name.substr(kSectorSection.size()) : name;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), m_sector);
    if (!SameName(name.substr(0, kSectorSection.size()), kSectorSection) || read.ec != std::errc{} ||
        read.ptr != number.data() + number.size() || m_sector >= kSectors)
      Fault(std::string(name), "no such section; Site and Sector 0 to Sector 11 are allowed");
  }

  void Key(std::string_view key, std::string_view value) {
    if (m_where == Where::Nowhere) return Fault(std::string(key), "the key stands before the first section");
    if (m_where == Where::Site) return SiteKey(key, value);
    const auto found = std::find_if(kSectorKeys.begin(), kSectorKeys.end(),
                                    [key](std::string_view known) { return SameName(key, known); });
    if (found == kSectorKeys.end()) return Fault(std::string(key), "no such key");
    const auto index = static_cast<std::size_t>(found - kSectorKeys.begin());
    Number(*found, value, m_file.values.sectors[m_sector][index], m_sectorSeen[m_sector][index]);
  }

  void SiteKey(std::string_view key, std::string_view value) {
    if (SameName(key, "SiteAltitude")) return Number(key, value, m_file.values.altitude, m_altitudeSeen);
    if (SameName(key, "BasicWindSpeed")) return Number(key, value, m_file.values.basicWindSpeed, m_speedSeen);
    if (SameName(key, "Wizard")) {
      if (value != "0" && value != "1") Fault(std::string(key), "0 or 1 is allowed");
      m_file.edited = value == "1";
    } else if (!SameName(key, "Name") && !SameName(key, "Description")) {
      Fault(std::string(key), "no such key");
    }
  }

  void Number(std::string_view key, std::string_view text, float& value, bool& seen) {
    if (seen) return Fault(std::string(key), "the key stands twice");
    seen = true;
    try {
      value = TextToSingle(text);
    } catch (const Error& error) {
      const bool tooLarge = error.Number() == static_cast<int>(ErrorNumber::Overflow);
      Fault(std::string(key),
            std::string(text).append(tooLarge ? " doesn't fit a 32-bit number" : " isn't a number"));
    }
  }

  void FindMissing() {
    if (!m_altitudeSeen) return Missing("SiteAltitude");
    if (!m_speedSeen) return Missing("BasicWindSpeed");
    for (std::size_t sector = 0; sector < kSectors; ++sector)
      for (std::size_t index = 0; index < kSectorValues; ++index)
        if (!m_sectorSeen[sector][index])
          return Missing(std::string(kSectorKeys[index]) + " of sector " + std::to_string(sector));
  }

  void Missing(const std::string& key) {
    m_file.fault = "The site file " + m_name + ", key " + key + ": the key isn't there";
  }

  void Fault(const std::string& key, const std::string& reason) {
    if (!m_file.fault.empty()) return;
    m_file.fault = "The site file " + m_name + ", line " + std::to_string(m_line);
    if (!key.empty()) m_file.fault += ", key " + key;
    m_file.fault += ": " + reason;
  }

  std::string m_name;
  SiteFile m_file;
  std::size_t m_line = 0;
  Where m_where = Where::Nowhere;
  std::size_t m_sector = 0;
  bool m_altitudeSeen = false;
  bool m_speedSeen = false;
  std::array<std::array<bool, kSectorValues>, kSectors> m_sectorSeen{};
};

}  // namespace

SiteFile ParseSite(const std::string& text, const std::string& name) {
  Parser parser(name);
  std::string_view rest = text;
  if (rest.substr(0, 3) == "\xEF\xBB\xBF") rest.remove_prefix(3);
  while (!rest.empty()) {
    const auto end = std::min(rest.find('\n'), rest.size());
    parser.Line(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return parser.Finish();
}

SiteFile ReadSite(const std::string& dataFolder, const std::string& reference) {
  const std::string name = reference + ".site";
  SiteFile faulty;
  if (!dataFolder.empty() && IsPlainName(reference)) {
    for (const char* folder : {"\\", "\\sites\\"}) {
      const std::string path = dataFolder + folder + name;
      if (!IsPlainFile(path)) continue;
      try {
        return ParseSite(ReadWholeFile(path), name);
      } catch (const Error& error) {
        faulty.fault = "The site file " + name + ": " + error.what();
        return faulty;
      }
    }
  }
  faulty.fault = reference.empty() ? "No site reference is given"
                                   : "The site " + reference + " isn't in " +
                                         (dataFolder.empty() ? "any data folder" : NativePath(dataFolder));
  return faulty;
}

}  // namespace orve::windspeed
