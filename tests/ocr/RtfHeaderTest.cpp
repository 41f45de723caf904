// The rewrite of RTF source.
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "base/Strings.h"
#include "ocr/RtfHeader.h"

namespace lumenote {
namespace {

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
