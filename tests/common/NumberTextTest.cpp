#include <bit>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

// Texts of many values, and the values that are read from them, as a host would have them that has set a mode
// of its own.
std::string SampleTexts() {
  std::string all;
  std::uint32_t state = 1;
  for (int i = 0; i < 5000; ++i) {
    state = state * 1664525u + 1013904223u;
    const auto value = std::bit_cast<float>(state);
    const float plain = static_cast<float>(state >> 12) / 1024 - 300;
    for (const float number : {value, plain}) {
      all += ShortestText(number) + SevenDigitText(number) + FormatFixed(number, 3) + FormatSigned(number);
      if (std::isfinite(number)) all += SevenDigitText(TextToSingle(SevenDigitText(number)));
    }
    all += ShortestText(std::bit_cast<double>(std::uint64_t{state} * 0x9E3779B97F4A7C15u)) + '\n';
  }
  for (const char* text : {"0.94", "0.565", "1e-3", "0.1", "123456.7", "9007199254740993"})
    all += ShortestText(TextToSingle(text)) + ShortestText(TextToDouble(text));
  return all;
}

TEST(NumberText, RestsOnNoRoundingMode) {
  const std::string nearest = SampleTexts();
  for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    std::fesetround(mode);
    const std::string texts = SampleTexts();
    const bool kept = std::fegetround() == mode;
    std::fesetround(FE_TONEAREST);
    EXPECT_TRUE(texts == nearest) << mode;
    EXPECT_TRUE(kept);
  }
}

TEST(NumberText, NarrowingRaisesNoFloatingPointException) {
  std::feclearexcept(FE_ALL_EXCEPT);
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {1e300, -1e300, infinity, std::nan(""), 70000.5}) {
    ErrorOf([value] { ToSingle(value); });
    ErrorOf([value] { ToInt16(value); });
    ErrorOf([value] { ToInt32(value); });
  }
  EXPECT_FALSE(std::fetestexcept(FE_INVALID | FE_OVERFLOW));
  EXPECT_EQ(ErrorOf([] { ToSingle(0x1.ffffffp127); }), 6);
  EXPECT_EQ(ToSingle(std::nextafter(0x1.ffffffp127, 0)), std::numeric_limits<float>::max());
}

TEST(NumberText, FixedFormatRoundsTheShortestTextHalvesAwayFromZero) {
  const struct {
    float value;
    const char* fixed;
    const char* signedText;
  } cases[] = {
      {1.0005f, "1.001", "+1.001"},
      {0.0005f, "0.001", "+0.001"},
      {-0.0005f, "-0.001", "-0.001"},
      {0.00049f, "0.000", "+0.000"},
      {-0.00049f, "0.000", "-0.000"},
      {0.9995f, "1.000", "+1.000"},
      {99.9996f, "100.000", "+100.000"},
      {12.5f, "12.500", "+12.500"},
      {6.1846f, "6.185", "+6.185"},
      {0.0f, "0.000", "+0.000"},
      {-0.0f, "0.000", "+0.000"},
      {1e-30f, "0.000", "+0.000"},
      {123456.7f, "123456.700", "+123456.700"},
      {3e10f, "30000000000.000", "+30000000000.000"},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(FormatFixed(item.value, 3), item.fixed);
    EXPECT_EQ(FormatSigned(item.value), item.signedText);
  }
  EXPECT_EQ(FormatFixed(1.0005, 3), "1.001");
  EXPECT_EQ(FormatFixed(static_cast<double>(1.0005f), 3), "1.000") << "at its own width: 1.000499...";
  EXPECT_EQ(FormatFixed(2.5, 0), "3");
}

TEST(NumberText, LoadTextIsEmptyForAnExactZeroOnly) {
  EXPECT_EQ(FormatSignedLoad(0.0f), "");
  EXPECT_EQ(FormatSignedLoad(-0.0f), "");
  EXPECT_EQ(FormatSignedLoad(-1e-6f), "-0.000");
  EXPECT_EQ(JoinLoads("+1.250", "-0.500"), "+1.250, -0.500 kN/m\u00B2");
  EXPECT_EQ(JoinLoads("", "-0.500"), "-0.500 kN/m\u00B2");
  EXPECT_EQ(JoinLoads("", ""), "");
}

TEST(NumberText, ShortFormsOfFloats) {
  EXPECT_EQ(ShortestText(0.1f), "0.1");
  EXPECT_EQ(ShortestText(16777216.0f), "16777216");
  EXPECT_EQ(ShortestText(-0.0f), "0");
  EXPECT_EQ(SevenDigitText(0.02f), "0.02");
  EXPECT_EQ(SevenDigitText(1.2345678f), "1.234568");
  EXPECT_EQ(SevenDigitText(12), "12");
  EXPECT_EQ(SevenDigitText(1e-20f), "1E-20");
}

TEST(NumberText, ConversionsTakePlainDecimalsWithOuterBlanks) {
  EXPECT_EQ(TextToSingle(" +1.5 "), 1.5f);
  EXPECT_EQ(TextToSingle("-.5E1"), -5.0f);
  EXPECT_EQ(TextToDouble("1e-400"), 0.0);
  EXPECT_EQ(TextToDouble("0.0000001e-340"), 0.0);
  EXPECT_EQ(TextToInt16("2.5"), 2);
  EXPECT_EQ(TextToInt16("3.5"), 4);
  EXPECT_TRUE(TextToBool("tRUE"));
  EXPECT_TRUE(TextToBool("-1"));
  EXPECT_FALSE(TextToBool("0"));
  for (const char* text : {"", " ", "1,5", "1.5 m", "inf", "nan", "0x10", "--1", "1e", "+", "."})
    EXPECT_EQ(ErrorOf([text] { TextToSingle(text); }), 13) << text;
  EXPECT_EQ(ErrorOf([] { TextToSingle("1e39"); }), 6);
  EXPECT_EQ(ErrorOf([] { TextToDouble("1e999999999999"); }), 6);
  EXPECT_EQ(ErrorOf([] { TextToInt16("32768"); }), 6);
  EXPECT_EQ(ErrorOf([] { TextToBool(""); }), 13);
}

TEST(Narrow, WholeNumbersRoundHalvesToEvenAndOverflowRaises) {
  EXPECT_EQ(ToInt16(0.5), 0);
  EXPECT_EQ(ToInt16(1.5), 2);
  EXPECT_EQ(ToInt16(-2.5), -2);
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_EQ(ErrorOf([] { ToInt16(32767.5); }), 6);
  EXPECT_EQ(ErrorOf([] { ToInt16(std::nan("")); }), 6);
  EXPECT_EQ(ErrorOf([] { ToSingle(1e39); }), 6);
  EXPECT_TRUE(std::isinf(ToSingle(std::numeric_limits<double>::infinity())));
}

}  // namespace orve
