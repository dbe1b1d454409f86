#include "Script.h"

#include <fstream>

namespace orve::test {

namespace {

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? std::string()
                                    : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
    end = text.find(separator, start);
    parts.push_back(Trimmed(text.substr(start, end == std::string::npos ? end : end - start)));
  }
  return parts;
}

}  // namespace

std::vector<std::string> ScriptLine::Arguments() const {
  const std::string text = Field(3);
  return text.empty() && Field(0) != "let" ? std::vector<std::string>() : Split(text, ';');
}

std::vector<ScriptLine> ReadScript(const std::filesystem::path& path) {
  std::vector<ScriptLine> lines;
  std::ifstream file(path);
  std::string text;
  for (int number = 1; std::getline(file, text); ++number)
    if (!text.empty() && text.front() != '#') lines.push_back({number, Split(text, '|')});
  return lines;
}

std::string Replaced(std::string text, const std::string& part, const std::string& by) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size()))
    text.replace(at, part.size(), by);
  return text;
}

}  // namespace orve::test
