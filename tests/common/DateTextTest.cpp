// Dates and their texts.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <orve3_bs6399_2.h>
#include <random>

#include "common/DateText.h"

namespace orve::test {
namespace {

TEST(DateTexts, WritesEitherHalfThatIsThere) {
  EXPECT_EQ(DateText(0), "00:00:00");
  EXPECT_EQ(DateText(0.75), "18:00:00");
  EXPECT_EQ(DateText(46350), "2026-11-24");
  EXPECT_EQ(DateText(46350.43125), "2026-11-24 10:21:00");
  EXPECT_EQ(DateText(-1.25), "1899-12-29 06:00:00");
  EXPECT_EQ(DateText(46350.999999), "2026-11-25") << "to the nearest second";
  EXPECT_EQ(DateText(-657434), "0100-01-01");
  EXPECT_EQ(LongDateText(46350.43125) + ", " + LongTimeText(46350.43125), "24 November 2026, 10:21:00");
  for (const double date :
       {2958466.0, -657435.0, 1e300, -std::numeric_limits<double>::infinity(), std::nan("")})
    EXPECT_THROW(DateText(date), Error) << date;
}

TEST(DateTexts, ReadsTheFormsOfOlderFiles) {
  struct Case {
    const char* text;
    const char* date;  // Empty for a text that doesn't convert.
  };
  const Case cases[] = {{" 2026-11-24 10:21:00 ", "2026-11-24 10:21:00"},
                        {"2026-11-24T10:21", "2026-11-24 10:21:00"},
                        {"24/11/2026 10:21:00", "2026-11-24 10:21:00"},
                        {"24.11.26", "2026-11-24"},
                        {"05/06/2010", "2010-06-05"},
                        {"11/24/2026", "2026-11-24"},
                        {"24 November 2026", "2026-11-24"},
                        {"24-nov-99", "1999-11-24"},
                        {"November 24, 2026", "2026-11-24"},
                        {"Tuesday, 24 November 2026", "2026-11-24"},
                        {"10:21:00 PM 1/2/30", "1930-02-01 22:21:00"},
                        {"1/2/29 12:00:00 AM", "2029-02-01"},
                        {"12:30 pm", "12:30:00"},
                        {"29/02/2024", "2024-02-29"},
                        {"00:00:00", "00:00:00"},
                        {"29/02/2023", ""},
                        {"31/04/2026", ""},
                        {"13/13/2026", ""},
                        {"24:00:00", ""},
                        {"13:00 PM", ""},
                        {"", ""},
                        {"today", ""},
                        {"46350.5", ""},
                        {"24/11", ""},
                        {"1/2/3/4", ""},
                        {"24/11/20260", ""},
                        {"24?11?2026", ""},
                        {"24 Smarch 2026", ""}};
  for (const Case& c : cases) {
    const auto date = ParseDate(c.text);
    EXPECT_EQ(date ? DateText(*date) : "", c.date) << c.text;
  }
  EXPECT_THROW(TextToDate("today"), Error);
}

TEST(DateTexts, EverySecondReadsBack) {
  std::mt19937 random(3);
  for (int count = 0; count < 2000; ++count) {
    const double day = std::uniform_int_distribution<int>(-657434, 2958465)(random);
    const double fraction = std::uniform_int_distribution<int>(0, 86399)(random) / 86400.0;
    const double date = day < 0 ? day - fraction : day + fraction;
    ASSERT_EQ(ParseDate(DateText(date)), date) << DateText(date);
  }
}

}  // namespace
}  // namespace orve::test
