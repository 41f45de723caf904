// The text that comes out of RTF.
#include <gtest/gtest.h>

#include "Reading.h"

namespace lumenote {
namespace {

class ReaderText : public testing::TestWithParam<Case> {};
TEST_P(ReaderText, ComesOut) { EXPECT_EQ(TextOf(Read(GetParam().rtf)), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Characters, ReaderText,
    testing::Values(
        Case{R"({\rtf1 a\{b\}c\\d})", R"(a{b}c\d)"}, Case{"{\\rtf1 a\r\nb\nc}", "abc"},
        Case{R"({\rtf1\ansi caf\'e9 \'80\'92})", "café €’"}, Case{R"({\rtf1\pca \'9b})", "ø"},
        Case{R"({\rtf1\mac \'8e}})", "é"}, Case{R"({\rtf1\ansi\ansicpg1251 \'cf\'f0})", "Пр"},
        Case{R"({\rtf1\ansicpg65001 \'c3\'a9t\'c3\'a9\par \'e2\'82\'ac})", "été\n€"},
        Case{R"({\rtf1 a\~b\_c\-d\|e\:f})", "a\u00A0b\u2011c\u00ADdef"},
        Case{R"({\rtf1 a\tab b\line c\lbr0 d})", "a\tb\vc\vd"},
        Case{R"({\rtf1\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote})", "—–•‘’“”"},
        Case{R"({\rtf1\emspace\enspace\qmspace\ltrmark\rtlmark\zwj\zwnj})",
             "   \u200E\u200F\u200D\u200C"},
        Case{R"({\rtf1 a\chdate\chpgn\unknown7 b})", "ab"},
        Case{R"({\rtf1{\fonttbl{\f1\fcharset2 Symbol;}}x\f1 A\'b7 B})", "x\uF041\uF0B7 \uF042"},
        Case{R"({\rtf1{\fonttbl{\f0\fcharset204 A;}{\f1\fcharset161 B;}}\f0\'cf{\f1\'e1}\'cf})",
             "ПαП"},
        Case{R"({\rtf1{\fonttbl{\f0\cpg1251 A;}}\deff0\plain\'cf})", "П"}));

INSTANTIATE_TEST_SUITE_P(
    DoubleBytes, ReaderText,
    testing::Values(
        Case{R"({\rtf1{\fonttbl{\f0\fcharset128 A;}{\f1 B;}}\f0\'83\'6f\'81[\f1\'e9})", "バーé"},
        Case{R"({\rtf1\ansicpg932 \'83\\\'b1\\\{\'94\}})", "ソｱ\\{媒"},
        Case{R"({\rtf1\ansicpg936 \'b1\'b1a\u20140\'be\'a9})", "北a京\uFFFD"},
        Case{R"({\rtf1\ansicpg949\uc2\u44032\'b0\'a1\'c7\'d1})", "가한"},
        Case{R"({\rtf1\ansicpg950{\listtext 1.\tab}\'a4\'a4\par\'a4})", "1.\t中\n\uFFFD"},
        Case{R"({\rtf1{\listtext\u46?\tab}{\field\uc2{\fldrslt a}}})", ".\ta"},
        Case{R"({\rtf1\ansicpg932{\pntext \'82\'50}\'82\'51})", "１２"}));

INSTANTIATE_TEST_SUITE_P(
    Unicode, ReaderText,
    testing::Values(
        Case{R"({\rtf1\u233?x\u-3913?y})", "éx\uF0B7y"},
        Case{R"({\rtf1\u-10179?\u-8704?})", "\U0001F600"},
        Case{R"({\rtf1\u128512?})", "\U0001F600"}, Case{R"({\rtf1\u99999999?b})", "\uFFFDb"},
        Case{R"({\rtf1\uc2\u8364 EUx\u233 eey})", "€xéy"},
        Case{R"({\rtf1{\uc0\u8364 a}\u8364 ?b})", "€a€b"}, Case{R"({\rtf1\u233\'e9\'e8})", "éè"},
        Case{R"({\rtf1\u8217\rquote s})", "’s"}, Case{R"({\rtf1\uc3{a\u8364 E}bcd})", "a€bcd"},
        Case{R"({\rtf1\uc2\u233 e\par f})", "é\nf"}, Case{R"({\rtf1\u233\b ?x})", "é?x"},
        Case{R"({\rtf1\uc9999999\u233 abc})", "é"}, Case{R"({\rtf1\uc-5\u233 abc})", "éabc"},
        Case{R"({\rtf1 A{\upr{ansi}{\*\ud{\uc0\u233 }}}B})", "AéB"},
        Case{R"({\rtf1 a\u13?b\'0dc\'0ad})", "a\nb\nc\nd"}, Case{R"({\rtf1 x\u233{y}z})", "xéyz"},
        Case{R"({\rtf1 x\u233\'1fy})", "xéy"}, Case{R"({\rtf1 x\u65536?y})", "x\U00010000y"},
        Case{"{\\rtf1 x\\u233\r\n?y}", "xéy"}));

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, ReaderText,
    testing::Values(Case{R"({\rtf1 a\par b\par})", "a\nb"}, Case{R"({\rtf1 a\par b})", "a\nb"},
                    Case{R"({\rtf1 a\par\par})", "a\n"}, Case{R"({\rtf1\par})", ""},
                    Case{R"({\rtf1})", ""}, Case{"{\\rtf1 a\\\nb\\\r\\\rc}", "a\nb\n\nc"},
                    Case{R"({\rtf1 a\par\pard\b})", "a"},
                    Case{R"({\rtf1 a\page b\par\page c\sect d\column e})", "a\nb\nc\nd\ne"},
                    Case{R"({\rtf1 a\cell b\cell\row c\cell\cell\row\pard d})", "a\tb\nc\t\nd"},
                    Case{R"({\rtf1 a\par x\cell y\nestcell\nestrow z})", "a\nx\ty\nz"},
                    Case{R"({\rtf1 a\cell{\nonesttables\par}{\*\nesttableprops b\nestrow}c})",
                         "a\tb\nc"}));

INSTANTIATE_TEST_SUITE_P(
    Groups, ReaderText,
    testing::Values(
        Case{R"({\rtf1{\info{\title T}}{\stylesheet{\s1 Normal;}}{\*\what ever{x}}a})", "a"},
        Case{R"({\rtf1{\header h}{\footerf f}b{\footnote n}c})",
             "b\uFFFC"
             "c"},
        Case{
            R"({\rtf1{\field{\*\fldinst HYPERLINK "x"}{\fldrslt L{\field{\fldinst P}{\fldrslt 7}}M}}B})",
            "L7MB"},
        Case{R"({\rtf1{\fldrslt \*\cs13 text}})", "text"},
        Case{R"({\rtf1 a{\pict 00}b{\*\shppict{\pict}}{\nonshppict{\pict}}c{\object x}})",
             "a\uFFFCb\uFFFCc\uFFFC"},
        Case{R"({\rtf1 a\bin4 }}}}b{\*\x\bin2 }}c}d})", "abd"},
        Case{R"({\rtf1\v hidden\v0\deleted gone})", "hiddengone"}));

INSTANTIATE_TEST_SUITE_P(
    Tokens, ReaderText,
    testing::Values(Case{R"({\rtf1\fs24 a\fs-3b})", "ab"}, Case{R"({\rtf1\li-a})", "-a"},
                    Case{R"({\rtf1\b  two})", " two"}, Case{R"({\rtf1\'e9\'E9\'4})", "éé"},
                    Case{R"({\rtf1\'zz})", "zz"}, Case{R"({\rtf1{\'e}x})", "x"},
                    Case{"{\\rtf1\\b\r\nx\ny}", "xy"}, Case{"{\\rtf1 a\tb\xE9\\\xE9z}", "a\tbééz"},
                    Case{R"({\rtf1\bin3 a}bc})", "c"}, Case{R"({\rtf1\bin-1 ab})", "ab"},
                    Case{R"({\rtf1\u99999999999?a\u-99999999999?b})", "\uFFFDa\uFFFDb"},
                    Case{R"({\rtf1{\*\x{b}\}c}d})", "d"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, ReaderText,
    testing::Values(
        Case{
            R"({\rtf1\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt{\pntxtb\'B7}}a\par{\pntext\'B7\tab}b\par})",
            "a\nb"},
        Case{R"({\rtf1\pard{\pntext 3.\tab}{\*\pn\pnlvlbody\pnstart3}a\par{\pntext 4.\tab}\par})",
             "3.\ta\n4.\t"},
        Case{
            R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc23}\listid7}{\list{\listlevel\levelnfc0}\listid8}}{\*\listoverridetable{\listoverride\listid7\ls1}{\listoverride\listid8\ls2}}\pard\ls1{\listtext *\tab}a\par\pard\ls2{\listtext 1.\tab}b\par})",
            "a\n1.\tb"},
        Case{R"({\rtf1{\pntext 1{\fonttbl{{{\pard}}}}2}a})", "12a"},
        Case{R"({\rtf1{\pntext{\pntext{\pntext x}}1.\u233}text})", "1.étext"}));

INSTANTIATE_TEST_SUITE_P(
    Damage, ReaderText,
    testing::Values(
        Case{R"({\rtf1 a}b\par c})", "ab\nc"}, Case{R"({\rtf1 a}}}{\b b})", "ab"},
        Case{R"({\rtf1 Hello}  )", "Hello"}, Case{R"({\rtf1{\b a} })", "a "},
        Case{"{\\rtf1 Hello}\r\ntrailing", "Hello"}, Case{R"({\rtf1 a{\b b{\i c)", "abc"},
        Case{R"({\rtf1 caf\'e)", "caf"}, Case{R"({\rtf1 a} b {\rtf1 c})", "a"},
        Case{R"({\rtf1 a}{\b b}})", "ab"}, Case{"\xEF\xBB\xBF \r\n{\n \\rtf1 a{\\b b}}", "ab"},
        Case{R"({\rtf1{*\themedata 00}a{*\latentstyles x}})", "*a*"},
        Case{R"({\rtf1{\fonttbl{\f0 Arial}{\f1 Times}}\f1 x})", "x"},
        Case{R"({\rtf1{\fonttbl{\f0 Arial;}\pard\f0 a\par b})", "a\nb"},
        Case{R"({\rtf1{\fonttbl{\f0 A;{\f1 B;}}{\colortbl;\red1;{\info{\title t}\pard a})", "a"},
        Case{R"({\rtf1{\stylesheet{\s1\pard x;}\viewkind4 a})", "a"}, Case{R"({\rtf1)", ""},
        Case{R"({\rtf1{\*}a{\*\})", "a}"}, Case{R"({\rtf1 a\bin99999 b})", "ab"},
        Case{R"({\rtf1{\upr a}b})", "ab"}, Case{"no RTF at all", "no RTF at all"},
        Case{"a}b{c", "abc"}, Case{"", ""}, Case{"\\", ""},
        Case{R"({\rtf1\f99\cf99\ls99 a})", "a"}));

TEST(Reader, ReadsRunsOfEveryLength) {
  for (const std::string_view stop : {"\\line", "{\\line}", "\\'0b", "\\u11?"}) {
    for (std::size_t length = 0; length < 40; ++length) {
      const std::string run(length, '~');
      const std::string rtf = std::string("{\\rtf1 ").append(run).append(stop);
      EXPECT_EQ(TextOf(Read(rtf + "{zzzzzzzzz}}")), run + "\vzzzzzzzzz") << rtf;
    }
  }
}

TEST(Reader, PassesOverNulBytes) {
  const std::string_view rtf("{\\rtf1\0 T\0h\0is\\b\0}\0\0", 20);
  EXPECT_EQ(TextOf(Read(rtf)), " This");
}

TEST(Reader, TakesEveryParagraphOfASelectionForABreak) {
  EXPECT_EQ(TextOf(Read(R"({\rtf1 a\par})", RtfTarget::Selection)), "a\n");
  EXPECT_EQ(TextOf(Read(R"({\rtf1 a})", RtfTarget::Selection)), "a");
  FormatTables tables;
  EXPECT_FALSE(ReadRtf(R"({\rtf1 a\par})", tables, RtfTarget::Selection).mark);
}

TEST(Reader, RecognisesRtf) {
  for (const char* rtf : {"{\\rtf1 a}", "{\\RTF1", "{\\urtf x", "{\\rtf sometext}"}) {
    EXPECT_TRUE(LooksLikeRtf(rtf)) << rtf;
  }
  for (const char* other : {"", "{\\rt", "text", "a {\\rtf1}", "{{\\rtf1}}", "\\rtf1"}) {
    EXPECT_FALSE(LooksLikeRtf(other)) << other;
  }
}

}  // namespace
}  // namespace lumenote
