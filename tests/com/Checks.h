// Counted checks of the COM test programs. A program's last line tells how many passed and failed.
#pragma once

#include <cstdio>
#include <string>

namespace orve::test {

class Checks {
 public:
  void True(bool passed, const std::string& what) {
    ++(passed ? m_passed : m_failed);
    if (!passed) std::printf("FAILED %s\n", what.c_str());
  }
  void Equal(const std::string& found, const std::string& expected, const std::string& what) {
    True(found == expected, what + ": \"" + found + "\" instead of \"" + expected + "\"");
  }
  template <class Number>
  void Equal(Number found, Number expected, const std::string& what) {
    True(found == expected, what + ": " + std::to_string(found) + " instead of " + std::to_string(expected));
  }

  /// Prints the closing line. The exit code of the program.
  int Close() const {
    std::printf("%d passed, %d failed\n", m_passed, m_failed);
    std::fflush(stdout);
    return m_failed == 0 ? 0 : 1;
  }

 private:
  int m_passed = 0;
  int m_failed = 0;
};

}  // namespace orve::test
