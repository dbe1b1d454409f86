// Dates as OLE dates (days and fractions of a day since 30 December 1899) and their texts, without a locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orve {

/// A calendar day and a time of day.
struct CivilTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// The OLE date of a day and time that exist.
double ToOleDate(const CivilTime& time);
/// Day and time of an OLE date, to the nearest second. Errors: 6 outside the years 100 to 9999.
CivilTime ToCivilTime(double date);

/// The text of a date in a case file: "2026-11-24 10:21:00", either half left out when it is 0; "00:00:00"
/// for date 0. Errors: 6 outside the years 100 to 9999.
std::string DateText(double date);
/// The long forms of day and time: "24 November 2026" and "10:21:00". Errors: as above.
std::string LongDateText(double date);
std::string LongTimeText(double date);

/// The date that a text stands for, outer blanks allowed: year first, day first, or month first where day
/// first can't be; months as numbers or in English words; a time of day before or behind, with AM or PM or
/// without; two-digit years from 1930 to 2029. Nothing if it doesn't convert.
std::optional<double> ParseDate(std::string_view text);
/// The same. Errors: 13 if the text doesn't convert.
double TextToDate(std::string_view text);

}  // namespace orve
