// The correction list: what its lines mean, which lines are refused, how it grows.
#include <gtest/gtest.h>
#include <vector>

#include "base/ErrorOf.h"
#include "ocr/CorrectionList.h"
#include "surface/Fakes.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kPath = u"C:\\ListCorr.txt";

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
  AppendCorrection(files, kPath, u"teh", u"the");
  AppendCorrection(files, kPath, u"c¿ur ", u"cœur");
  AppendCorrection(files, kPath, u"two\r\nlines", u"");
  const std::u16string_view outside[] = {u"\u2603", u"\u0085", u"\U0001F600", u"\xD800"};
  for (const std::u16string_view text : outside) {
    EXPECT_EQ(ErrorOf([&] { AppendCorrection(files, kPath, text, u"a"); }), 5);
    EXPECT_EQ(ErrorOf([&] { AppendCorrection(files, kPath, u"a", text); }), 5);
  }
  EXPECT_EQ(files.ReadAll(kPath), "teh=:=the\r\nc\xBFur =:=c\x9Cur\r\ntwo\r\nlines=:=\r\n");
}

}  // namespace
}  // namespace lumenote
