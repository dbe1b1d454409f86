#include "explain/FormulaValue.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "common/NumberText.h"
#include "orve3_bs6399_2.h"

namespace orve::test {

namespace {

constexpr std::string_view kTimes = "\u00D7";

class Reader {
 public:
  Reader(std::string_view text, const SymbolValue& valueOf) : m_rest(text), m_valueOf(valueOf) {}

  double Whole() {
    const double value = Sum();
    if (!Rest().empty()) ADD_FAILURE() << "unread: " << m_rest;
    return value;
  }

 private:
  std::string_view Rest() {
    while (!m_rest.empty() && m_rest.front() == ' ') m_rest.remove_prefix(1);
    return m_rest;
  }
  bool Take(std::string_view token) {
    if (Rest().substr(0, token.size()) != token) return false;
    m_rest.remove_prefix(token.size());
    return true;
  }

  double Sum() {
    double value = Take("-") ? -Product() : Product();
    while (true) {
      if (Take("+"))
        value += Product();
      else if (Take("-"))
        value -= Product();
      else
        return value;
    }
  }
  double Product() {
    double value = Power();
    while (true) {
      if (Take(kTimes))
        value *= Power();
      else if (Take("/"))
        value /= Power();
      else
        return value;
    }
  }
  double Power() {
    const double base = Atom();
    return Take("^") ? std::pow(base, Atom()) : base;
  }
  double Atom() {
    if (Take("-")) return -Atom();
    if (Take("(")) return Close(Sum());
    const std::string_view text = Rest();
    if (text.empty()) {
      ADD_FAILURE() << "the formula ends early";
      return 0;
    }
    std::size_t length = 0;
    const bool number = text.front() >= '0' && text.front() <= '9';
    while (length < text.size() && text.find_first_of(" +-/^(),", length) != length &&
           text.substr(length, kTimes.size()) != kTimes)
      ++length;
    m_rest.remove_prefix(length);
    const std::string_view word = text.substr(0, length);
    if (number) return TextToDouble(word);
    return Take("(") ? Function(word) : m_valueOf(word);
  }
  double Function(std::string_view name) {
    double value = Sum();
    while (Take(",")) value = name == "max" ? std::max(value, Sum()) : std::min(value, Sum());
    if (name == "ln") value = std::log(value);
    if (name == "sqrt") value = std::sqrt(value);
    if (name == "cbrt") value = std::pow(value, 1.0 / 3);
    return Close(value);
  }
  double Close(double value) {
    if (!Take(")")) ADD_FAILURE() << "no closing bracket before: " << m_rest;
    return value;
  }

  std::string_view m_rest;
  const SymbolValue& m_valueOf;
};

}  // namespace

double FormulaValue(std::string_view formula, const SymbolValue& valueOf) {
  return Reader(formula, valueOf).Whole();
}

}  // namespace orve::test
