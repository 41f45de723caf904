// The signs of symbol fonts.
#include <gtest/gtest.h>

#include "base/Strings.h"
#include "view/layout/CharLook.h"

namespace lumenote {
namespace {

TEST(SymbolFonts, ShowTheirSigns) {
  const std::u16string_view rows[][3] = {
      {u"Symbol", u"abz ABZ", u"αβζ ΑΒΖ"},
      {u"SYMBOL", u"\uF061\uF0B7\uF0FE\uF07F", u"α•⎭\uF07F"},
      {u"Symbol", u"fjV~Þ³ïñý\r\n\v\uFFFC", u"φϕς∼⇒≥⎪⟩⎬\r\n\v\uFFFC"},
      {u"Wingdings", u"\uF0A7\uF0D8\uF0FC\uF0E0", u"▪➢✓→"},
      {u"wingdings", u"lmnov\uF076\u008A\u0095^i\uF044é", u"●❍■□❖❖⑩❿♈♓\uF044⬆"},
      {u"Wingdings 2", u"PR\uF06A\u0098ÿ", u"✓☑①⬤ÿ"},
      {u"WINGDINGS 3", u"fg\uF070}\u00C8ì", u"←→▲▸⬇⬇"},
      {u"Webdings", u"a4g\uF0E9!", u"✔▶■♿!"},
      {u"Arial", u"ab\uF0B7", u"ab\uF0B7"}};
  for (const auto& [name, text, shown] : rows) {
    std::u16string signs(text);
    ShowSigns(signs, SymbolFontOf({.name = std::u16string(name)}));
    EXPECT_EQ(ToUtf8(signs), ToUtf8(shown)) << ToUtf8(name);
  }
}

TEST(SymbolFonts, AreShownAsSignsWhereTheyAreMissing) {
  FormatTables tables;
  const CharFormat symbols{.font = tables.fonts.Intern({.name = u"Symbol"})};
  const auto signsOf = [&](FontTest isInstalled) {
    return LookOf(tables, symbols, 1, 0xFFFFFF, isInstalled).signs;
  };
  EXPECT_EQ(signsOf([](const FontFace&) { return true; }), SymbolFont::None);
  EXPECT_EQ(signsOf([](const FontFace&) { return false; }), SymbolFont::Symbol);
}

}  // namespace
}  // namespace lumenote
