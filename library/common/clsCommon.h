// Angle and sector arithmetic, value coercion and path texts.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

/// Stateless helpers; the one instance is `basBS6399_2::Common`. Angles are in degrees, a sector index is a
/// `WindSectors` value.
class clsCommon {
 public:
  /// Value minus Modulus times their whole quotient. Both operands are first rounded to whole numbers, halves
  /// to even, and only then divided, so the result lies between about -0.5 and Modulus - 0.5. Errors: 11 if
  /// Modulus rounds to 0.
  double FractionalMod(double value, double modulus) const;
  /// Brings an angle from -360 up to just under 720 into 0 to 360 (an angle just below 360 comes out just
  /// below 0).
  float AngleToPositive(float angle) const;
  /// The nearest sector, 0 to 11: sector k takes the angles from 30k - 15 up to just under 30k + 15.
  std::int16_t AngleToIndex(float angle) const;
  /// The angle of a sector: index times 30, remainder by 360. Errors: 6 if the product doesn't fit 16 bits.
  float IndexToAngle(std::int16_t index) const;
  /// The line through (angle1, value1) and (angle2, value2) read at an angle, across 360 degrees. Errors: 11
  /// if the two angles are equal.
  float ValueForIntermediateAngle(float angle1, float angle2, float value1, float value2, float angle) const;
  /// Straight-line interpolation, also beyond the two settings; value1 if they are equal.
  float ValueForIntermediateSetting(float setting1, float setting2, float value1, float value2,
                                    float setting) const;
  /// 0 minus the value, in its type. Errors: 6 for the least whole number.
  std::int32_t ReverseSign(std::int32_t value) const;
  float ReverseSign(float value) const { return 0.0f - value; }
  double ReverseSign(double value) const { return 0.0 - value; }
  /// The value to the power 1/3. Errors: 5 for a negative value.
  double CubeRoot(double value) const;

  /// Cuts a number out of a text such as "+1.234 kN/m²"; `defaultText` if there is none.
  std::string MakeNumeric(const std::string& value, const std::string& defaultText) const;
  /// The number as text; `defaultText` for 0.
  std::string MakeNumeric(std::int32_t value, const std::string& defaultText) const;
  std::string MakeNumeric(float value, const std::string& defaultText) const;
  std::string MakeNumeric(double value, const std::string& defaultText) const;
  /// Null-safe text: `defaultText` for a null pointer, else the value as text.
  std::string MakeString(const char* value, const std::string& defaultText) const;
  std::string MakeString(const std::string& value, const std::string& defaultText) const;
  std::string MakeString(std::int32_t value, const std::string& defaultText) const;
  std::string MakeString(float value, const std::string& defaultText) const;
  std::string MakeString(double value, const std::string& defaultText) const;
  /// The date that a text stands for, or `defaultDate` if it doesn't convert.
  double MakeDate(const std::string& value, double defaultDate) const;
  /// Loose truth value: "FALSE", "0", "NO", "N" and "TRUE", "1", "-1", "YES", "Y" in any case; else the
  /// default.
  bool MakeBoolean(const std::string& value, bool defaultValue) const;
  /// A number that converts to 0 (False), 1 or -1 (True); else the default. Errors: 6 outside 16 bits.
  bool MakeBoolean(double value, bool defaultValue) const;

  /// A if A is greater than B, else B.
  double Max(double a, double b) const { return a > b ? a : b; }
  /// A if A is less than B, else B.
  double Min(double a, double b) const { return a < b ? a : b; }
  /// The value rounded to a number of decimal places, halves upwards.
  double RoundArithmetically(double value, std::int16_t places) const;
  /// Compares two values at a number of decimal places: 0 equal, 1 greater, 2 less, 3 not less, 4 not
  /// greater; any other comparison is False. Errors: 6 if a scaled value doesn't fit 32 bits.
  bool CheckFixedDecimalPlace(std::int16_t places, std::int16_t comparison, double a, double b) const;

  // Path texts. The separator is "\".
  /// The text behind the last "\"; all of the path if it has none.
  std::string ExtractFileName(const std::string& path) const;
  /// The path without its file name, closing "\" included; all of the path if it has no "\".
  std::string ExtractPathName(const std::string& path) const;
  /// The text behind the last "." of the whole text; empty if there is none.
  std::string ExtractFileExtension(const std::string& name) const;
  /// The file name without its extension and the point.
  std::string ExtractFileNameWithoutExtension(const std::string& path) const;
  /// The path with a "\" added unless it ends in one.
  std::string EndWithSlash(const std::string& path) const;
  /// Folder of the library (`Host().LibraryFolder`), closing "\" included.
  std::string AppPathWithSlash() const;

  /// True if a plain file of that name exists, case ignored; an error in the lookup counts as False.
  bool FileExists(const std::string& path) const;
  /// "v", major version, ".", minor version, ".", revision, as in "v3.0.33".
  std::string AppVersion() const;
  /// Shows a message through `Host().MsgBox` and returns the button.
  std::int32_t MsgBox(const std::string& prompt, std::int32_t buttons, const std::string& title) const;
};

}  // namespace orve
