// Replacements, blanks, the correction list; the rewrite of RTF source.
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "base/ErrorOf.h"
#include "base/Rows.h"
#include "base/Windows1252.h"
#include "ocr/Cleanup.h"
#include "ocr/CorrectionList.h"
#include "ocr/RtfHeader.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kList = u"C:\\ListCorr.txt";

struct Note : UserBench {
  explicit Note(std::u16string_view text) { surface.Text(Unmarked(text)); }
};

TEST(RemplacerTout, GoesOnBehindWhatItPutIn) {
  for (const auto& [text, find, replace, result, count] : Rows16<5>(R"(
"" | a | b | "" | 0 ¦ abc | "" | x | abc | 0 ¦ Teh teh TEH | teh | the | the the the | 3
modern | RN | m | modem | 1 ¦ a,,b | , | ,␣ | a, ,b | 1 ¦ aaaa | a | "" | aa | 2
aaa | a | aa | aaaaa | 2 ¦ aaaaaa | aa | aa | aaaaaa | 2 ¦ x¶x | x | y | y¶y | 2 ¦ end | d | "" | en | 1
)")) {
    Note note(text);
    EXPECT_EQ(RemplacerTout(note.surface, find, replace), count[0] - u'0');
    EXPECT_EQ(note.surface.Text(), Unmarked(result)) << ToUtf8(text);
  }
}

TEST(RemplacerTout, HasPositionsOf16Bits) {
  Note full(std::u16string(32767, u'a'));
  EXPECT_EQ(RemplacerTout(full.surface, u"b", u"c"), 0);
  EXPECT_EQ(ErrorOf([&] { RemplacerTout(full.surface, u"a", u"aaaaaaaaaa"); }), 6);
  EXPECT_GT(full.surface.Text().size(), 32767u);
  Note longer(std::u16string(32768, u'a'));
  EXPECT_EQ(ErrorOf([&] { RemplacerTout(longer.surface, u"a", u"b"); }), 6);
  EXPECT_EQ(longer.surface.Text(), std::u16string(32768, u'a'));
}

TEST(NormaliserEspaces, FollowsItsOrder) {
  for (const auto& [text, result] : Rows16<2>(R"(
a,b;c => a, b ; c ¦ a , b => a, b ¦ a    b => a b ¦ A,,B => A,,B ¦ 1,5 => 1, 5 ¦ a  ;b => a ; b
a:b.c?d!e => a:b.c?d!e ¦ ; => ␣;␣ ¦ a¶  b => a¶ b ¦ ␣␣␣␣␣␣␣␣␣ => ␣
)",
                                              " => ")) {
    Note note(text);
    NormaliserEspaces(note.surface);
    EXPECT_EQ(note.surface.Text(), Unmarked(result)) << ToUtf8(text);
  }
}

// --- the correction list

std::vector<Correction> Read(std::string_view bytes) {
  std::vector<Correction> pairs;
  CorrectionReader reader(bytes);
  while (auto pair = reader.Next()) pairs.push_back(*std::move(pair));
  return pairs;
}

TEST(CorrectionReader, SplitsLines) {
  const struct {
    std::string_view bytes;
    std::vector<Correction> pairs;
  } rows[] = {{"", {}},
              {"teh=:=the\r\n", {{u"teh", u"the"}}},
              {"a=:=b\nc=:=d\r\n", {{u"a", u"b"}, {u"c", u"d"}}},
              {"e ,=:= e, \r\n", {{u"e ,", u" e, "}}},
              {"a=:=b=:=c\r\n", {{u"a", u"b=:=c"}}},
              {"a=:=:=b\r\n", {{u"a", u":=b"}}},
              {"a=:=\r\n=:=x\r\n", {{u"a", u""}, {u"", u"x"}}},
              {"b=:=c\r\na=:=b\r\nb=:=c\r\n", {{u"b", u"c"}, {u"a", u"b"}, {u"b", u"c"}}},
              {"c\xBFur=:=c\x9Cur", {{u"c¿ur", u"cœur"}}}};
  for (const auto& row : rows) EXPECT_EQ(Read(row.bytes), row.pairs) << row.bytes;
}

TEST(CorrectionReader, RefusesBadLinesByNumber) {
  const struct {
    std::string bytes;
    int number;
    std::u16string_view line;
  } rows[] = {{"\r\n", 5, u"ligne 1"},
              {"a=:=b\r\n\r\n", 5, u"ligne 2"},
              {"a=:=b\r\nc=:=d\r\nword", 5, u"ligne 3"},
              {std::string(40000, 'a'), 5, u"ligne 1"},
              {"a=:=b\r\n" + std::string(32763, 'a') + "=:=bb", 6, u"ligne 2"}};
  for (const auto& row : rows) {
    try {
      Read(row.bytes);
      ADD_FAILURE() << row.bytes.substr(0, 40);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), row.number);
      EXPECT_TRUE(error.Description().ends_with(row.line)) << error.what();
    }
  }
  EXPECT_EQ(Read(std::string(32763, 'a') + "=:=b").size(), 1u);
}

TEST(AppendCorrection, AddsALineAsItStands) {
  MemoryFiles files;
  AppendCorrection(files, kList, u"teh", u"the");
  AppendCorrection(files, kList, u"c¿ur ", u"cœur");
  AppendCorrection(files, kList, u"two\r\nlines", u"");
  const std::u16string_view outside[] = {u"\u2603", u"\u0085", u"\U0001F600", u"\xD800"};
  for (const std::u16string_view text : outside) {
    EXPECT_EQ(ErrorOf([&] { AppendCorrection(files, kList, text, u"a"); }), 5);
    EXPECT_EQ(ErrorOf([&] { AppendCorrection(files, kList, u"a", text); }), 5);
  }
  EXPECT_EQ(files.ReadAll(kList), "teh=:=the\r\nc\xBFur =:=c\x9Cur\r\ntwo\r\nlines=:=\r\n");
}

TEST(ApplyListCorr, AppliesPairsInFileOrder) {
  for (const auto& [list, text, result, error] : Rows16<4>(R"(
a=:=b¶b=:=c¶ | a b | c c | 0 ¦ b=:=c¶a=:=b¶ | a b | b c | 0 ¦ =:=x¶teh=:=the | Teh | the | 0
a=:=b¶¶c=:=d¶ | a c | b c | 5 ¦ a=:=b¶no pair¶ | a | b | 5
)")) {
    Note note(text);
    note.files.Write(kList, ToUtf8(Unmarked(list)));
    EXPECT_EQ(ErrorOf([&] { ApplyListCorr(note.surface, note.files, kList); }), error[0] - u'0');
    EXPECT_EQ(note.surface.Text(), Unmarked(result)) << ToUtf8(list);
  }
  Note note(u"a");
  ApplyListCorr(note.surface, note.files, u"C:\\none.txt");
  EXPECT_EQ(note.surface.Text(), u"a");
}

// Few letters, so that pairs meet what earlier ones put in; breaks and both cases included.
TEST(AppliquerPaires, EqualsTheLiteralLoopOnRandomTexts) {
  std::mt19937 random(1);
  const auto word = [&](std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) c = "abABe\xE9\xC9 ,\r"[random() % 10];
    return text;
  };
  for (int round = 0; round < 400; ++round) {
    const std::string text = word(300);
    std::string list;
    for (int pair = 0; pair < 60; ++pair) list += word(7) + "=:=" + word(6) + "\n";
    Note quick(Decode1252(text));
    Note literal(Decode1252(text));
    std::vector<std::int16_t> counts;
    for (const auto& [wrong, right] : Read(list))
      counts.push_back(RemplacerTout(literal.surface, wrong, right));
    ASSERT_EQ(AppliquerPaires(quick.surface, list), counts) << list;
    ASSERT_EQ(quick.surface.Text(), literal.surface.Text()) << list;
  }
}

// An item more gives those behind it other numbers.
TEST(AppliquerPaires, EqualsTheLiteralLoopOnNumberedLists) {
  std::string source =
      R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc0\levelstartat1{\leveltext\'02\'00.;}}\listid7}})"
      R"({\*\listoverridetable{\listoverride\listid7\ls1}})";
  for (int item = 1; item <= 9; ++item)
    source += R"(\pard\ls1{\listtext )" + std::to_string(item) + R"(.\tab}pas \par )";
  Note quick(u"");
  quick.surface.TextRTF(FromUtf8(source + "}"));
  const std::string list =
      "s =:=s\ru\n18.\tu=:=found\n" + std::string("u=:=") + std::string(9, '\r') + "\n";
  EXPECT_EQ(AppliquerPaires(quick.surface, list), (std::vector<std::int16_t>{9, 1, 9}));
}

TEST(NormaliserEnteteRtf, RewritesItsThreeWords) {
  for (const auto& [text, result] : Rows16<2>(R"(
"" => "" ¦ x => $ ¦ ab => $$ ¦ abcd => $$ab ¦ \sl276\slmult1 abc => $$\sl240\slmult1 a
\SL276 \b abc => $$\SL240\b a ¦ \fs48 abc => $$\fs22 a ¦ \sl276\fs48 abc => $$\sl240\fs48 a
\f0\fcharset0 Arial;}xy => $$\f0\fcharset0 Times New Roman ;} ¦ \fs48 => $$\fs22␣
\fcharset2 Symbol;}xy => $$\fcharset2 Symbol;} ¦ \sl => $$\sl240\
\fcharset0 Ar => $$\fcharset0 Times New Roman ;
)",
                                              " => ")) {
    std::u16string source = text;
    EXPECT_EQ(NormaliserEnteteRtf(source), result) << ToUtf8(text);
    EXPECT_EQ(source, u"$$" + text);
  }
}

TEST(NormaliserEnteteRtf, HasPositionsOf16Bits) {
  std::u16string most(32766, u'a');
  EXPECT_EQ(NormaliserEnteteRtf(most).size(), 32766u);
  std::u16string more(32767, u'a');
  EXPECT_EQ(ErrorOf([&] { NormaliserEnteteRtf(more); }), 6);
}

}  // namespace
}  // namespace lumenote
