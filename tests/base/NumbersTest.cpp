// Checked conversions and number texts.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

#include "base/ErrorOf.h"
#include "base/Numbers.h"

namespace lumenote {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, SixteenBits) {
  EXPECT_EQ(ToInt16(std::int64_t{-32768}), -32768);
  EXPECT_EQ(ToInt16(32767.5 - 1e-6), 32767);
  EXPECT_EQ(ToInt16(-32768.5), -32768);
  EXPECT_EQ(ErrorOf([] { ToInt16(std::int64_t{32768}); }), 6);
  EXPECT_EQ(ErrorOf([] { ToInt16(32767.5); }), 6);
  for (const double value : {kInfinity, -kInfinity, std::nan(""), 1e300}) {
    EXPECT_EQ(ErrorOf([&] { ToInt16(value); }), 6) << value;
    EXPECT_EQ(ErrorOf([&] { ToInt32(value); }), 6) << value;
  }
}

TEST(Numbers, HalvesRoundToEven) {
  const std::pair<double, int> kCases[] = {{0.5, 0},  {1.5, 2},   {2.5, 2},
                                           {-0.5, 0}, {-1.5, -2}, {12.6, 13}};
  for (const auto& c : kCases) EXPECT_EQ(ToInt32(c.first), c.second) << c.first;
  EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
  EXPECT_EQ(ErrorOf([] { ToInt32(2147483647.5); }), 6);
}

TEST(Numbers, Parsing) {
  const struct {
    double number;
    std::vector<std::u16string_view> texts;
  } kCases[] = {
      {100, {u"100", u" 100 ", u"\t1e2\t", u"+1,00E+2", u"1D2", u"100,", u"00100.", u"1000d-1"}},
      {-.25, {u"-,25", u"-.25", u"-0,25", u" -0.25 ", u"-25e-2"}},
      {0, {u"0", u"-0,0000e99", u"0e999999999999", u"1e-400", u"1e-99999999999999999999"}},
      {0xABCDEF, {u"&HABCDEF", u"&h00abcdef&", u" &HaBcDeF"}},
      {-1, {u"&HFFFFFFFF", u"&Hffffffff&"}}};
  for (const auto& c : kCases) {
    for (const auto text : c.texts) {
      EXPECT_EQ(ParseNumber(text), c.number) << testing::PrintToString(text);
    }
  }
}

TEST(Numbers, TextsThatAreNone) {
  for (const std::u16string_view text :
       {u"",      u"  ",         u"abc",      u"12a",      u"1 2", u"1,2,3", u"1,2.3", u"+-1",
        u"-+1",   u"--1",        u"+",        u"-",        u",",   u"e5",    u"1e",    u"1e+",
        u"inf",   u"-nan",       u"infinity", u"0x10",     u"&H",  u"&H&",   u"&HG",   u"&H-1",
        u"&H1 F", u"1\u00A0000", u"１２",     u"12\u0412", u"é"}) {
    EXPECT_EQ(ErrorOf([&] { ParseNumber(text); }), 13) << testing::PrintToString(text);
  }
  EXPECT_EQ(ErrorOf([] { ParseNumber(std::u16string_view(u"1\0", 2)); }), 13);
}

TEST(Numbers, TextsTooLarge) {
  for (const std::u16string_view text :
       {u"1e400", u"-1e309", u"1e99999999999999999999", u"0,001e999", u"&H1FFFFFFFF", u"1D+999"}) {
    EXPECT_EQ(ErrorOf([&] { ParseNumber(text); }), 6) << testing::PrintToString(text);
  }
  EXPECT_EQ(ErrorOf([] { ParseNumber(std::u16string(400, u'9')); }), 6);
  EXPECT_EQ(ParseNumber(u"0," + std::u16string(400, u'0') + u"1"), 0);
  EXPECT_EQ(ErrorOf([] { ParseInt32(u"2147483648"); }), 6);
  EXPECT_EQ(ParseInt32(u"-2147483648,5"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorOf([] { ParseSingle(u"3,5e38"); }), 6);
  EXPECT_EQ(ParseSingle(u"0,1"), 0.1F);
}

TEST(Numbers, Texts) {
  const std::pair<float, std::u16string_view> kCases[] = {
      {-0.0F, u"0"},         {1.25F, u"1,25"},         {-12.7F, u"-12,7"},    {100, u"100"},
      {12.700001F, u"12,7"}, {1.0F / 3, u"0,3333333"}, {1234567, u"1234567"}, {1e-5F, u"1E-05"}};
  for (const auto& c : kCases) EXPECT_EQ(NumberText(c.first), c.second) << c.first;
  EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

}  // namespace
}  // namespace lumenote
