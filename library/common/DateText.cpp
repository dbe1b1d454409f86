#include "common/DateText.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "common/Error.h"
#include "common/LetterCase.h"
#include "common/Narrow.h"
#include "common/TextEncoding.h"

namespace orve {

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr std::int64_t SecondsPerDay = 86400;

constexpr std::array<std::string_view, 12> MonthNames = {"January",   "February", "March",    "April",
                                                         "May",       "June",     "July",     "August",
                                                         "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> DayNames = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                      "Friday", "Saturday", "Sunday"};

/// Days from 30 December 1899, in the Gregorian calendar. Years begin in March here, so that the leap day is
/// a year's last.
std::int64_t DaysFromCivil(int year, int month, int day) {
  constexpr std::int64_t daysTo1899 = 693899;
  const std::int64_t y = year - (month <= 2 ? 1 : 0);
  const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  return y * 365 + y / 4 - y / 100 + y / 400 + dayOfYear - daysTo1899;
}

bool IsLeapYear(int year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysInMonth(int year, int month) {
  constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

bool IsDay(int year, int month, int day) {
  return year >= FirstYear && year <= LastYear && month >= 1 && month <= 12 && day >= 1 &&
         day <= DaysInMonth(year, month);
}

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  return std::string(digits.size() < width ? width - digits.size() : 0, '0') + digits;
}

/// Whole days and seconds of the day. The fraction of a date counts forwards, also before 1899.
struct DayAndSecond {
  std::int64_t day;
  std::int64_t second;
};

DayAndSecond Split(double date) {
  const double first = static_cast<double>(DaysFromCivil(FirstYear, 1, 1));
  const double last = static_cast<double>(DaysFromCivil(LastYear, 12, 31));
  if (!(date > first - 1 && date < last + 1)) RaiseOverflow();
  const double whole = std::trunc(date);
  DayAndSecond split{
      static_cast<std::int64_t>(whole),
      static_cast<std::int64_t>(RoundHalfEven(std::fabs(date - whole) * static_cast<double>(SecondsPerDay)))};
  if (split.second == SecondsPerDay) split = {split.day + 1, 0};
  return split;
}

CivilTime Civil(const DayAndSecond& split) {
  // Begin with a year that isn't too late, then walk to the day.
  int year = static_cast<int>(1899 + std::floor(static_cast<double>(split.day) / 366.0));
  if (split.day < 0) year = static_cast<int>(1899 + std::floor(static_cast<double>(split.day) / 365.0));
  while (year < LastYear && DaysFromCivil(year + 1, 1, 1) <= split.day) ++year;
  int month = 1;
  while (month < 12 && DaysFromCivil(year, month + 1, 1) <= split.day) ++month;
  const int day = static_cast<int>(split.day - DaysFromCivil(year, month, 1)) + 1;
  if (!IsDay(year, month, day)) RaiseOverflow();
  const int second = static_cast<int>(split.second);
  return {year, month, day, second / 3600, second / 60 % 60, second % 60};
}

std::string TimeText(const CivilTime& time) {
  return Digits(time.hour, 2) + ":" + Digits(time.minute, 2) + ":" + Digits(time.second, 2);
}

}  // namespace

double ToOleDate(const CivilTime& time) {
  const double day = static_cast<double>(DaysFromCivil(time.year, time.month, time.day));
  const double fraction =
      (time.hour * 3600 + time.minute * 60 + time.second) / static_cast<double>(SecondsPerDay);
  return day < 0 ? day - fraction : day + fraction;
}

CivilTime ToCivilTime(double date) {
  return Civil(Split(date));
}

std::string DateText(double date) {
  const DayAndSecond split = Split(date);
  const CivilTime time = Civil(split);
  const std::string day = Digits(time.year, 4) + "-" + Digits(time.month, 2) + "-" + Digits(time.day, 2);
  if (split.day == 0) return TimeText(time);
  return split.second == 0 ? day : day + " " + TimeText(time);
}

std::string LongDateText(double date) {
  const CivilTime time = ToCivilTime(date);
  return std::to_string(time.day) + " " + std::string(MonthNames[static_cast<std::size_t>(time.month - 1)]) +
         " " + Digits(time.year, 4);
}

std::string LongTimeText(double date) {
  return TimeText(ToCivilTime(date));
}

namespace {

/// One number, word or sign of a date text.
struct Token {
  enum class Kind { Number, Word, Sign, End };
  Kind kind = Kind::End;
  int number = 0;
  std::size_t digits = 0;
  std::string_view text;
};

/// A date text in tokens. The last one is always an end, so that a look ahead needs no test.
class Tokens {
 public:
  static constexpr std::size_t Most = 16;

  explicit Tokens(std::string_view text) {
    while (m_complete && !text.empty()) Add(text);
  }

  bool Complete() const { return m_complete; }
  std::size_t Count() const { return m_count; }
  const Token& operator[](std::size_t at) const { return m_tokens[at < m_count ? at : m_count]; }
  bool IsSign(std::size_t at, char sign) const {
    return (*this)[at].kind == Token::Kind::Sign && (*this)[at].text.front() == sign;
  }
  bool IsNumber(std::size_t at) const { return (*this)[at].kind == Token::Kind::Number; }
  bool IsWord(std::size_t at, std::string_view upper) const {
    return (*this)[at].kind == Token::Kind::Word && UpperCase((*this)[at].text) == upper;
  }
  /// Takes tokens out.
  void Remove(std::size_t at, std::size_t count) {
    for (std::size_t to = at; to + count <= m_count; ++to) m_tokens[to] = m_tokens[to + count];
    m_count -= count;
  }

 private:
  static bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

  void Add(std::string_view& text) {
    if (text.front() == ' ' || text.front() == '\t') return text.remove_prefix(1);
    Token token;
    std::size_t length = 1;
    const auto extend = [&](bool (*belongs)(char)) {
      while (length < text.size() && belongs(text[length])) ++length;
    };
    if (IsDigit(text.front())) {
      extend(IsDigit);
      token.kind = Token::Kind::Number;
      token.digits = length;
      for (std::size_t at = 0; at < length && length <= 4; ++at)
        token.number = token.number * 10 + (text[at] - '0');
    } else if (IsLetter(text.front())) {
      extend(IsLetter);
      token.kind = Token::Kind::Word;
    } else {
      token.kind = Token::Kind::Sign;
    }
    token.text = text.substr(0, length);
    text.remove_prefix(length);
    m_complete = m_count + 1 < Most && token.digits <= 4;
    if (m_complete) m_tokens[m_count++] = token;
  }

  std::array<Token, Most> m_tokens{};
  std::size_t m_count = 0;
  bool m_complete = true;
};

/// Position from 1 of a name or of its first three letters; 0 if it isn't one.
template <std::size_t Count>
int FindName(const std::array<std::string_view, Count>& names, std::string_view word) {
  const std::string upper = UpperCase(word);
  for (std::size_t at = 0; at < Count; ++at) {
    const std::string name = UpperCase(names[at]);
    if (upper == name || upper == name.substr(0, 3)) return static_cast<int>(at) + 1;
  }
  return 0;
}

/// Takes the time of day out of the tokens. False if there is one that can't be.
bool TakeTime(Tokens& tokens, CivilTime& time, bool& found) {
  found = false;
  const auto halfOfDay = [&tokens](std::size_t at) {
    return tokens.IsWord(at, "AM") ? 1 : tokens.IsWord(at, "PM") ? 2 : 0;
  };
  for (std::size_t at = 0; at < tokens.Count(); ++at) {
    const bool clock = tokens.IsNumber(at) && tokens.IsSign(at + 1, ':') && tokens.IsNumber(at + 2);
    if (!clock && !(tokens.IsNumber(at) && halfOfDay(at + 1) != 0)) continue;
    found = true;
    time.hour = tokens[at].number;
    std::size_t next = at + 1;
    if (clock) {
      time.minute = tokens[at + 2].number;
      next = at + 3;
      if (tokens.IsSign(next, ':') && tokens.IsNumber(next + 1)) {
        time.second = tokens[next + 1].number;
        next += 2;
      }
    }
    if (const int half = halfOfDay(next)) {
      if (time.hour < 1 || time.hour > 12) return false;
      time.hour = time.hour % 12 + (half == 2 ? 12 : 0);
      ++next;
    }
    // The "T" between day and time of the international form.
    const bool joined = at > 0 && tokens.IsWord(at - 1, "T");
    tokens.Remove(joined ? at - 1 : at, next - at + (joined ? 1 : 0));
    return time.hour < 24 && time.minute < 60 && time.second < 60;
  }
  return true;
}

int FullYear(const Token& token) {
  if (token.digits > 2) return token.number;
  return token.number + (token.number < 30 ? 2000 : 1900);
}

/// Sets the day if it exists.
bool SetDay(CivilTime& time, int year, int month, int day) {
  if (!IsDay(year, month, day)) return false;
  time.year = year;
  time.month = month;
  time.day = day;
  return true;
}

/// Takes names of weekdays and the signs between the fields out of the tokens.
bool KeepFields(Tokens& tokens) {
  for (std::size_t at = 0; at < tokens.Count();) {
    const Token& token = tokens[at];
    const bool separator = token.kind == Token::Kind::Sign;
    if (separator && std::string_view("/-.,").find(token.text.front()) == std::string_view::npos)
      return false;
    const bool weekday = token.kind == Token::Kind::Word && FindName(DayNames, token.text) != 0;
    if (separator || weekday)
      tokens.Remove(at, 1);
    else
      ++at;
  }
  return tokens.Count() == 3;
}

bool ReadDay(Tokens& tokens, CivilTime& time) {
  if (!KeepFields(tokens)) return false;
  for (std::size_t at = 0; at < 3; ++at) {
    if (tokens.IsNumber(at)) continue;
    // A month in words: between day and year, or before both.
    const int month = FindName(MonthNames, tokens[at].text);
    const std::size_t day = at == 0 ? 1 : 0;
    const std::size_t year = at == 2 ? 1 : 2;
    if (month == 0 || !tokens.IsNumber(day) || !tokens.IsNumber(year)) return false;
    if (tokens[day].digits > 2) return SetDay(time, FullYear(tokens[day]), month, tokens[year].number);
    return SetDay(time, FullYear(tokens[year]), month, tokens[day].number);
  }
  const int first = tokens[0].number;
  const int second = tokens[1].number;
  if (tokens[0].digits > 2) return SetDay(time, FullYear(tokens[0]), second, tokens[2].number);
  const int year = FullYear(tokens[2]);
  return SetDay(time, year, second, first) || SetDay(time, year, first, second);
}

}  // namespace

std::optional<double> ParseDate(std::string_view text) {
  Tokens tokens(text);
  CivilTime time{1899, 12, 30, 0, 0, 0};
  bool hasTime = false;
  if (!tokens.Complete() || !TakeTime(tokens, time, hasTime)) return std::nullopt;
  if (tokens.Count() == 0) return hasTime ? std::optional<double>(ToOleDate(time)) : std::nullopt;
  if (!ReadDay(tokens, time)) return std::nullopt;
  return ToOleDate(time);
}

double TextToDate(std::string_view text) {
  if (const auto date = ParseDate(text)) return *date;
  throw Error(ErrorNumber::TypeMismatch, "Type mismatch: \"" + ShortText(text) + "\" isn't a date");
}

}  // namespace orve
