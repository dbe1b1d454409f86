// Digests, and texts in markup and style sheets.
#include <gtest/gtest.h>
#include <sheet/Derivation.h>
#include <sheet/Html.h>
#include <sheet/Sha256.h>
#include <string>

namespace orve::sheet {

namespace {

TEST(Sha256, GivesThePublishedDigests) {
  EXPECT_EQ(Sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(Sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(Sha256(std::string(1000000, 'a')),
            "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Markup, EscapesWhatMarkupAndStylesWouldTakeAsTheirs) {
  struct Case {
    std::string text;
    std::string escaped;
  };
  const Case cases[] = {{"a < b & \"c\" > 'd'", "a &lt; b &amp; &quot;c&quot; &gt; &#39;d&#39;"},
                        {"m\u00B2 \u00A3 \u20AC \U0001F300", "m\u00B2 \u00A3 \u20AC \U0001F300"},
                        {std::string("tab\tnull\0end\x7F", 13), "tab null end "},
                        {"cut \xC3", "cut \uFFFD"},
                        {"\xC0\xAF \xED\xA0\x80 \xF5", "\uFFFD\uFFFD \uFFFD\uFFFD\uFFFD \uFFFD"}};
  for (const Case& one : cases) EXPECT_EQ(Escaped(one.text), one.escaped);
  EXPECT_EQ(StyleString("A 1\u00B2</style>\"\n"), "\"A 1\u00B2\\3c \\2f style\\3e \\22  \"");
  for (const std::string text : {"", "Mill & Sons <\"A\">", "it's &amp; not", "a\tb\n", "caf\xE9"})
    EXPECT_EQ(MetaContent("<head>" + MetaTag("project", PlainText(text)) + "</head>", "project"),
              PlainText(text));
  EXPECT_EQ(PlainText("caf\xE9\tm\u00B2"), "caf\u00E9 m\u00B2");
  EXPECT_EQ(MetaContent(MetaTag("author", "x"), "project"), "");
}

TEST(Markup, SetsSymbolsAndFormulas) {
  EXPECT_EQ(SymbolMarkup("q"), "<i>q</i>");
  EXPECT_EQ(SymbolMarkup("Cpe_p"), "<i>C</i><sub>pe,p</sub>");
  EXPECT_EQ(SymbolMarkup("\u0394S"), "<i>\u0394</i><sub>S</sub>");
  EXPECT_EQ(FormulaMarkup("max(0, -Cpe) \u00D7 Ve^2"),
            "max(0, \u2212<i>C</i><sub>pe</sub>) \u00D7 <i>V</i><sub>e</sub><sup>2</sup>");
}

}  // namespace

}  // namespace orve::sheet
