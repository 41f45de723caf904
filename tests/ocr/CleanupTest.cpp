// Replacements, blanks and the corrections of clean text; the rewrite of RTF source.
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "ocr/Cleanup.h"
#include "ocr/RtfHeader.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kList = u"C:\\ListCorr.txt";

struct Note : UserBench {
  explicit Note(std::u16string_view text) { surface.Text(text); }
};

TEST(RemplacerTout, GoesOnBehindWhatItPutIn) {
  const struct {
    std::u16string_view text, find, replace, result;
    int count;
  } rows[] = {{u"", u"a", u"b", u"", 0},
              {u"abc", u"", u"x", u"abc", 0},
              {u"Teh teh TEH", u"teh", u"the", u"the the the", 3},
              {u"modern", u"RN", u"m", u"modem", 1},
              {u"a,,b", u",", u", ", u"a, ,b", 1},
              {u"aaaa", u"a", u"", u"aa", 2},
              {u"aaa", u"a", u"aa", u"aaaaa", 2},
              {u"aaaaaa", u"aa", u"aa", u"aaaaaa", 2},
              {u"x\r\nx", u"x", u"y", u"y\r\ny", 2},
              {u"end", u"d", u"", u"en", 1}};
  for (const auto& row : rows) {
    Note note(row.text);
    const int count = RemplacerTout(note.surface, row.find, row.replace);
    EXPECT_EQ(note.surface.Text(), row.result) << ToUtf8(row.text);
    EXPECT_EQ(count, row.count) << ToUtf8(row.text);
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
  const struct {
    std::u16string_view text, result;
  } rows[] = {{u"a,b;c", u"a, b ; c"}, {u"a , b", u"a, b"}, {u"a    b", u"a b"},
              {u"A,,B", u"A,,B"},      {u"1,5", u"1, 5"},   {u"a:b.c?d!e", u"a:b.c?d!e"},
              {u"a  ;b", u"a ; b"},    {u";", u" ; "},      {u"a\r\n  b", u"a\r\n b"},
              {u"         ", u" "}};
  for (const auto& row : rows) {
    Note note(row.text);
    NormaliserEspaces(note.surface);
    EXPECT_EQ(note.surface.Text(), row.result) << ToUtf8(row.text);
  }
}

TEST(ApplyListCorr, AppliesPairsInFileOrder) {
  const struct {
    std::string_view list;
    std::u16string_view text, result;
    int error;
  } rows[] = {{"a=:=b\r\nb=:=c\r\n", u"a b", u"c c", 0},
              {"b=:=c\r\na=:=b\r\n", u"a b", u"b c", 0},
              {"=:=x\r\nteh=:=the", u"Teh", u"the", 0},
              {"a=:=b\r\n\r\nc=:=d\r\n", u"a c", u"b c", 5},
              {"a=:=b\r\nno pair\r\n", u"a", u"b", 5}};
  for (const auto& row : rows) {
    Note note(row.text);
    note.files.Write(kList, row.list);
    EXPECT_EQ(ErrorOf([&] { ApplyListCorr(note.surface, note.files, kList); }), row.error);
    EXPECT_EQ(note.surface.Text(), row.result) << row.list;
  }
  Note note(u"a");
  ApplyListCorr(note.surface, note.files, u"C:\\none.txt");
  EXPECT_EQ(note.surface.Text(), u"a");
}

TEST(NormaliserEnteteRtf, RewritesItsThreeWords) {
  const struct {
    std::u16string_view source, result;
  } rows[] = {{u"", u""},
              {u"x", u"$"},
              {u"ab", u"$$"},
              {u"abcd", u"$$ab"},
              {u"\\sl276\\slmult1 abc", u"$$\\sl240\\slmult1 a"},
              {u"\\SL276 \\b abc", u"$$\\SL240\\b a"},
              {u"\\fs48 abc", u"$$\\fs22 a"},
              {u"\\sl276\\fs48 abc", u"$$\\sl240\\fs48 a"},  // the backslash is used up
              {u"\\f0\\fcharset0 Arial;}xy", u"$$\\f0\\fcharset0 Times New Roman ;}"},
              {u"\\fcharset2 Symbol;}xy", u"$$\\fcharset2 Symbol;}"},
              {u"\\fs48", u"$$\\fs22 "},
              {u"\\sl", u"$$\\sl240\\"},
              {u"\\fcharset0 Ar", u"$$\\fcharset0 Times New Roman ;"}};
  for (const auto& row : rows) {
    std::u16string source(row.source);
    EXPECT_EQ(NormaliserEnteteRtf(source), row.result) << ToUtf8(row.source);
    EXPECT_EQ(source, u"$$" + std::u16string(row.source));
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
