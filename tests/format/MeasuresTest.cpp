// The arithmetic of the paragraph dialog at its edges.
#include <gtest/gtest.h>

#include "format/Measures.h"

namespace lumenote {
namespace {

TEST(MeasuresTest, LengthsSnapToTheGridUpToItsLastMultiple) {
  const std::pair<std::int32_t, std::int32_t> by150[] = {
      {0, 0},         {74, 0},        {75, 150},      {-75, 0},       {-76, -76},
      {224, 150},     {225, 300},     {-1000, -1000}, {37574, 37500}, {37575, 37650},
      {37724, 37650}, {37725, 37725}, {37800, 37800}};
  for (const auto& [value, snapped] : by150) EXPECT_EQ(CorrValIndent(value, 150), snapped) << value;
  const std::pair<std::int32_t, std::int32_t> by5[] = {{1, 0}, {2, 2}, {3, 5}, {7, 7}, {8, 10}};
  for (const auto& [value, snapped] : by5) EXPECT_EQ(CorrValIndent(value, 5), snapped) << value;
  for (const std::int32_t beyond : {753, 755, 756, INT32_MAX, INT32_MIN})
    EXPECT_EQ(CorrValIndent(beyond, 3), beyond);
}

TEST(MeasuresTest, TwipsAsMillimetresAreCutDown) {
  const struct {
    double twips;
    std::u16string_view shown, whole;
  } cases[] = {{0, u"0", u"0"},         {1, u"0,01", u"0"},     {165, u"2,91", u"2"},
               {567, u"10", u"10"},     {1440, u"25,4", u"25"}, {-1, u"-0,02", u"-1"},
               {-165, u"-2,92", u"-3"}, {150, u"2,64", u"2"},   {32767, u"577,97", u"577"}};
  for (const auto& c : cases) {
    EXPECT_EQ(MillimetresText(c.twips), c.shown) << c.twips;
    EXPECT_EQ(WholeMillimetresText(c.twips), c.whole) << c.twips;
  }
}

TEST(MeasuresTest, LineSpacingIsShownInLinesAndReadInTwentieths) {
  const std::pair<std::int32_t, std::u16string_view> shown[] = {
      {20, u"1"}, {25, u"1,25"}, {30, u"1,5"}, {31, u"1,55"},  {99, u"4,95"},
      {0, u"0"},  {1, u"0,05"},  {240, u"12"}, {2005, u"100,"}};
  for (const auto& [code, text] : shown) EXPECT_EQ(LineSpacingText(code), text);
  const std::pair<std::u16string_view, std::optional<std::int32_t>> read[] = {
      {u"1", 20},    {u"1,25", 25},  {u"1,3", 26}, {u"4,95", 99}, {u"4,99", 99}, {u"5", 1},
      {u"1,29", 25}, {u"0", 0},      {u",5", 10},  {u",", {}},    {u"", {}},     {u"1.5", {}},
      {u"-1", {}},   {u"1,2,3", {}}, {u"x", {}},   {u" 1", {}},   {u"99999", 1}};
  for (const auto& [text, code] : read) EXPECT_EQ(LineSpacingCode(text), code);
}

TEST(MeasuresTest, NumberBoxesAreBroughtIntoForm) {
  const std::pair<std::u16string_view, std::u16string_view> cases[] = {
      {u" 2.5 ", u"2,5"}, {u"2,5,1", u"0"}, {u"-1", u"0"},  {u"", u""},   {u"  ", u""},
      {u"1e3", u"0"},     {u"9", u"9"},     {u"0,", u"0,"}, {u":", u"0"}, {u"/", u"0"}};
  for (const auto& [typed, formed] : cases) EXPECT_EQ(NormalisedNumber(typed), formed);
  EXPECT_TRUE(IsNumericText(u"-1-", true));
  EXPECT_FALSE(IsNumericText(u"-1", false));
}

}  // namespace
}  // namespace lumenote
