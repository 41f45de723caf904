// The short ways through long runs of text.
#include <gtest/gtest.h>
#include <string>

#include "rtf/Tokenizer.h"

namespace lumenote {
namespace {

TEST(Tokenizer, DecodesPlainTextOfEveryLength) {
  for (const char stop : {'\\', '{', '}', '\t', '\x1F', '\0'}) {
    for (std::size_t length = 0; length < 40; ++length) {
      const std::string source = std::string(length, '~') + stop + "zzzzzzzzz";
      Tokenizer tokens(source);
      char16_t out[64];
      const std::size_t expected = stop == '\0' ? length + 9 : length;
      EXPECT_EQ(tokens.Decode(CodePage(), true, out), expected) << int{stop} << " " << length;
    }
  }
}

TEST(Tokenizer, DecodesUnicodeWithOneCharacterBehindIt) {
  const struct {
    std::string_view source;
    std::u16string_view text;  // that goes the short way
  } kRows[] = {{R"(\u233?\u8217\'92\u-3 ab)", u"\u00E9\u2019\uFFFDb"},
               {R"(x\u233{y})", u"x"},
               {R"(x\u233\'1f)", u"x"},
               {R"(x\u13?)", u"x"},
               {R"(x\u65536?)", u"x"},
               {R"(x\u233\b y)", u"x"},
               {R"(x\u233)", u"x"},
               {"x\\u233\r\n?y", u"x"},
               {R"(x\uc1 y)", u"x"}};
  for (const auto& row : kRows) {
    Tokenizer tokens(row.source);
    char16_t out[64];
    EXPECT_EQ(std::u16string_view(out, tokens.Decode(CodePage(), true, out)), row.text)
        << row.source;
  }
}

}  // namespace
}  // namespace lumenote
