#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "Reading.h"
#include "rtf/Tokenizer.h"

namespace lumenote {
namespace {

void Describe(const Token& token, std::ostream& out) {
  switch (token.kind) {
    case Token::Kind::Word:
      out << token.text;
      if (token.hasNumber) out << token.number;
      break;
    case Token::Kind::Symbol:
      out << '\\' << token.byte;
      break;
    case Token::Kind::Byte:
      out << '#' << int{token.byte};
      break;
    case Token::Kind::Binary:
      out << "bin:" << token.text;
      break;
    case Token::Kind::High:
      out << "high" << token.text.size();
      break;
    default:
      out << "'" << token.text << "'";
  }
}

std::string Tokens(std::string_view source) {
  Tokenizer tokens(source);
  std::ostringstream all;
  for (Token t = tokens.Next(); t.kind != Token::Kind::End; t = tokens.Next()) {
    if (all.tellp() > 0) all << ' ';
    Describe(t, all);
  }
  return all.str();
}

class TokenizerTable : public testing::TestWithParam<Case> {};
TEST_P(TokenizerTable, CutsTheSource) { EXPECT_EQ(Tokens(GetParam().rtf), GetParam().expected); }
INSTANTIATE_TEST_SUITE_P(
    Cases, TokenizerTable,
    testing::Values(Case{R"({\b text}rest)", "'{' b 'text' '}' 'rest'"},
                    Case{R"(\fs24 a\fs-3b)", "fs24 'a' fs-3 'b'"}, Case{R"(\li-a)", "li '-a'"},
                    Case{R"(\b  two)", "b ' two'"}, Case{"\\b\r\nx\ny", "b 'x' 'y'"},
                    Case{R"(\'e9\'E9\'4)", "#233 #233"}, Case{R"(\'zz)", "'zz'"},
                    Case{R"(\'e}x)", "'}' 'x'"}, Case{"a\tb", "'a' #9 'b'"},
                    Case{R"(\~\*\|\\)", R"(\~ \* \| \\)"}, Case{"\xE9\xE8z", "high2 'z'"},
                    Case{"\\\xE9z", "high1 'z'"}, Case{R"(\bin3 a}bc)", "bin:a}b 'c'"},
                    Case{R"(\bin9 ab)", "bin: 'ab'"}, Case{R"(\bin-1 ab)", "bin: 'ab'"},
                    Case{"\\", ""}, Case{"", ""}, Case{R"(\u99999999999)", "u2147483647"},
                    Case{R"(\u-99999999999)", "u-2147483647"}));

TEST(Tokenizer, PassesOverNulBytes) {
  EXPECT_EQ(Tokens(std::string_view("a\0b\\b\0c", 7)), "'a' 'b' b 'c'");
}

TEST(Tokenizer, SkipsAGroupUpToItsBrace) {
  Tokenizer tokens(R"({a{b}\}c}d)");
  tokens.Next();
  tokens.SkipGroup();
  EXPECT_EQ(tokens.Next().kind, Token::Kind::Close);
  EXPECT_EQ(tokens.Next().text, "d");
}

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
  } kRows[] = {
      {R"(\u233?\u8217\'92\u-3 ab)", u"\u00E9\u2019\uFFFDb"},
      {R"(x\u233{y})", u"x"},
      {R"(x\u233\'1f)", u"x"},
      {R"(x\u13?)", u"x"},
      {R"(x\u65536?)", u"x"},
      {R"(x\u233\b y)", u"x"},
      {R"(x\u233)", u"x"},
      {"x\\u233\r\n?y", u"x"},
      {R"(x\uc1 y)", u"x"},
  };
  for (const auto& row : kRows) {
    Tokenizer tokens(row.source);
    char16_t out[64];
    EXPECT_EQ(std::u16string_view(out, tokens.Decode(CodePage(), true, out)), row.text)
        << row.source;
  }
}

}  // namespace
}  // namespace lumenote
