// Sheets through the real program.
#include <gtest/gtest.h>
#include <string>

#include "windcase/Program.h"

namespace orve::test {

namespace {

bool Has(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

TEST_F(Program, WritesASheetAndChecksItAgainstItsCase) {
  MakeShed("shed.wlc");
  std::string earlier = Content("shed.wlc");
  earlier.replace(earlier.find("Modified=") + 9, 4, "2020");
  Write("shed.wlc", earlier);
  Output({"sheet", "shed.wlc", "--project", "Mill <A> & Sons", "--author", "caf\xE9\tB"});
  const std::string sheet = Content("shed.html");
  EXPECT_TRUE(Has(sheet, "Mill &lt;A&gt; &amp; Sons"));

  EXPECT_EQ(Run({"sheet", "shed.wlc"}).code, 3);
  EXPECT_EQ(Content("shed.html"), sheet);
  Output(
      {"sheet", "shed.wlc", "--project", "Mill <A> & Sons", "--author", "caf\u00E9 B", "-o", "again.html"});
  EXPECT_EQ(Content("again.html"), sheet);

  Output({"set", "shed.wlc", "Roof_Height=7"});  // saved again on another day
  EXPECT_TRUE(Has(Output({"check", "shed.wlc", "--sheet", "shed.html"}), "is the one that this case gives"));
  Write("again.html", sheet + " ");
  const Ending changed = Run({"check", "shed.wlc", "--sheet", "again.html"});
  EXPECT_EQ(changed.code, 1);
  EXPECT_TRUE(Has(changed.out, "was changed after it was made"));
  Output({"set", "shed.wlc", "Roof_Height=7.25"});
  const Ending other = Run({"check", "shed.wlc", "--sheet", "shed.html"});
  EXPECT_EQ(other.code, 1);
  EXPECT_TRUE(Has(other.out, "aren't those of the sheet"));
  EXPECT_EQ(Run({"check", "shed.wlc", "--sheet", "shed.wlc"}).code, 3);
}

}  // namespace

}  // namespace orve::test
