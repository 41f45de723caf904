// The formats that come out of RTF.
#include <gtest/gtest.h>

#include "Reading.h"

namespace lumenote {
namespace {

class ReaderFormat : public testing::TestWithParam<Case> {};
TEST_P(ReaderFormat, ComesOut) { EXPECT_EQ(Shown(Read(GetParam().rtf)), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Characters, ReaderFormat,
    testing::Values(
        Case{R"({\rtf1{\stylesheet{\s1\qc\b H;}{\*\cs2\ul C;}}\pard\plain\s1 a{\cs2\b b}\plain c})",
             R"(a<b \cs2>b<>c|<\s1>)"},
        Case{R"({\rtf1 a\b b\i c\b0 d\plain e})", "a<b>b<b i>c<i>d<>e|<>"},
        Case{R"({\rtf1 a{\b b{\i c}d}e})", "a<b>b<b i>c<b>d<>e|<>"},
        Case{R"({\rtf1\ul a\ulnone b\uldb c\ul0 d\ululdbwave e})", "<ul1>a<>b<ul3>c<>d<ul10>e|<>"},
        Case{R"({\rtf1\strike a\strike0\striked1 b\striked0 c})", "<strike>a<striked>b<>c|<>"},
        Case{R"({\rtf1\caps\scaps\v\outl\shad\embo\impr\deleted a})",
             "<caps scaps v outl shad embo impr deleted>a|<>"},
        Case{R"({\rtf1\super a\sub b\sub0 c\super\nosupersub d})", "<super>a<sub>b<>cd|<>"},
        Case{R"({\rtf1\up6 a\dn3 b\up c\up0 d\dn999999 e})",
             "<up60>a<up-30>b<up60>c<>d<up-32768>e|<>"},
        Case{R"({\rtf1\fs20 a\fs0 b\fs-4 c\fs999999 d})", "<fs20>abc<fs65535>d|<>"},
        Case{R"({\rtf1\lang1036 a\expnd2 b\expndtw-7 c\charscalex150 d})",
             "<lang1036>a<expndtw10 lang1036>b<expndtw-7 lang1036>c<expndtw-7 charscalex150 "
             "lang1036>d|<>"},
        Case{
            R"({\rtf1{\colortbl;\red1\green2\blue3;\red255;}\cf1 a\highlight2 b\cf0 c\highlight0\cf9 d})",
            "<cf30201>a<cf30201 highlightff>b<highlightff>c<>d|<>"},
        Case{R"({\rtf1{\colortbl\red1\green999\blue-4;\red16}\cf0 a\cf1\cb0\chcbpat1 b})",
             "<cfff01>a<cf10 highlight10>b|<>"}));

INSTANTIATE_TEST_SUITE_P(
    Fonts, ReaderFormat,
    testing::Values(
        Case{
            R"({\rtf1{\fonttbl{\f0\froman\fprq2\fcharset0 Times New Roman;}{\f7 A\'e9\u8364?B;}}\f7 a\f0 b\f3 c})",
            "<Aé€B>a<Times New Roman family1 pitch2>bc|<>"},
        Case{
            R"({\rtf1{\fonttbl\f0\fswiss Arial;\f1 B{\*\falt X};\f2{\*\panose 02}\fmodern\fcharset204 \'cf})",
            "|<>"},
        Case{R"({\rtf1\deff1{\fonttbl{\f0 A;}{\f1 B;}}a\f0 b\plain c})", "<B>a<A>b<B>c|<>"},
        Case{R"({\rtf1\deff0\fs20{\fonttbl{\f0 A;}}a\plain b})", "<A fs20>a<A>b|<>"},
        Case{R"({\rtf1\deff0\deflang1033{\fonttbl{\f0 A;}}a\lang1036 b\plain c})",
             "<A lang1033>a<A lang1036>b<A lang1033>c|<>"},
        Case{
            R"({\rtf1\deff0\deflang1036{\fonttbl{\f0\fnil\fcharset0 Arial;}}\viewkind4\uc1\pard\fs20\par })",
            "<Arial fs20>|<>"}));

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, ReaderFormat,
    testing::Values(
        Case{R"({\rtf1\qc a\par\qr b\par\qj c\par\ql d\par})", "a|<qc>b|<qr>c|<qj>d|<>"},
        Case{R"({\rtf1\pard\fi-200\li-200\f1 Test\par})", "Test|<first-400 hanging200>"},
        Case{R"({\rtf1\li720\fi360\ri100\sb60\sa80 a\par\pard b})",
             "a|<first1080 hanging-360 ri100 sb60 sa80>b|<>"},
        Case{R"({\rtf1\fi100\li200\rtlpar\qr a\par\ltrpar b})",
             "a|<qr first300 hanging-100 rtl>b|<qr first300 hanging-100>"},
        Case{R"({\rtf1\sl360\slmult1 a\par\sl480 b\par\sl240 c\par\sl276 d\par\sl0 e})",
             "a|<1.5>b|<2>c|<>d|<multiple 23>e|<>"},
        Case{R"({\rtf1\sl300 a\par\sl-280\slmult0 b\par\slmult1\sl1 c})",
             "a|<atleast 300>b|<exact 280>c|<multiple 1>"},
        Case{R"({\rtf1\tx900\tqc\tldot\tx300\tb600\tqdec\tlul\tx900\tqr\tx1200 a})",
             "a|<tc300 leader1 tb600 td900 leader3 tr1200>"},
        Case{R"({\rtf1{\pard\tx1 a\par}\tx2{\tx3 b\par}c})", "a|<tl1>b|<tl2 tl3>c|<tl2>"},
        Case{R"({\rtf1\li99999999999 a})", "a|<first1000000>"},
        Case{
            R"({\rtf1\pard{\pntext\'B7\tab}{\*\pn\pnlvlblt}\fi-360\li360 a\par{\pntext\'B7\tab}b\par\pard c})",
            "a|<hanging360 bullet>b|<hanging360 bullet>c|<>"},
        Case{
            R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc0}{\listlevel\levelnfc23}\listid7}}{\*\listoverridetable{\listoverride\listid7\ls0}}\ls0\ilvl1 a\par\ilvl0 b})",
            "a|<bullet list1 level1>b|<list1>"}));

INSTANTIATE_TEST_SUITE_P(FinalMark, ReaderFormat,
                         testing::Values(Case{R"({\rtf1\b a\par})", "<b>a|<>"},
                                         Case{R"({\rtf1\b a\b0\qc\par})", "<b>a<>|<qc>"},
                                         Case{R"({\rtf1 a\par\qr b})", "a|<>b|<qr>"},
                                         Case{R"({\rtf1{\pard\qc\b a}})", "<b>a|<qc>"},
                                         Case{R"({\rtf1 a\par\pard\qc})", "a|<>"}));

INSTANTIATE_TEST_SUITE_P(
    Objects, ReaderFormat,
    testing::Values(Case{"{\\rtf1 a{\\pict\\wmetafile8\r\n0102}b}",
                         "a<{\\pict\\wmetafile8\r\n0102}>\uFFFC<>b|<>"},
                    Case{R"({\rtf1{\b\*\x{\*\shppict{\pict 01}}}})", R"(<b {\*\shppict{\pict 01}}>)"
                                                                     "\uFFFC<b>|<>"},
                    Case{"{\\rtf1{\\pict\\bin4 \xE9}{\\\xE8}}",
                         "<{\\pict\r\ne97d7b5c\\'e8}>\uFFFC<>|<>"},
                    Case{R"({\rtf1{\object{\result x)", R"(<{\object{\result x}}>)"
                                                        "\uFFFC<>|<>"},
                    Case{R"({\rtf1{\object a\'e)", R"(<{\object a}>)"
                                                   "\uFFFC<>|<>"}));

TEST(Reader, KeepsTheBaseFormatWhereNoDefaultFontIsNamed) {
  EXPECT_EQ(Shown(Read(R"({\rtf1 a\plain b})", RtfTarget::Document, {.size = 20})),
            "<fs20>a<>b|<>");
  EXPECT_EQ(Shown(Read(R"({\rtf1\deff0 a})", RtfTarget::Document, {.size = 20})), "a|<>");
}

}  // namespace
}  // namespace lumenote
