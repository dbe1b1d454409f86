// The committed sheets of the sample cases.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sheet/Sheet.h>
#include <string>

#include "sheet/SheetReader.h"

namespace orve::test {

namespace {

using SampleSheets = SheetCase;

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(SampleSheets, AreThoseOfTheSampleCasesToTheByte) {
  int sheets = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ORVE_SAMPLE_CASES)) {
    if (entry.path().extension() != ".wlc") continue;
    SCOPED_TRACE(entry.path().filename().string());
    const auto path = std::filesystem::path(ORVE_SAMPLE_SHEETS) / entry.path().stem().concat(".html");
    const std::string committed = ContentOf(path);
    ASSERT_TRUE(root->OpenExisting(entry.path().string()));
    const std::string made = sheet::MakeSheet({"Sample cases", "", "", "A", ""});
    EXPECT_TRUE(made == committed) << "the target sample_sheets makes the sheets again";
    EXPECT_LT(committed.size(), 200000U);
    EXPECT_TRUE(sheet::CheckSheet(committed).sameBytes);
    ++sheets;
  }
  EXPECT_GE(sheets, 4);
}

}  // namespace

}  // namespace orve::test
