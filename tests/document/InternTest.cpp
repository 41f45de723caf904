// The table that numbers formats.
#include <gtest/gtest.h>

#include "document/Formats.h"

namespace lumenote {
namespace {

TEST(InternTable, TellsMembersApart) {
  FormatTables tables;
  EXPECT_EQ(tables.fonts.Intern({u"Arial", 0, 2, 0}), 1u);
  EXPECT_EQ(tables.fonts.Intern({u"Arial", 0, 0, 2}), 2u);
  EXPECT_EQ(tables.fonts.Intern({u"Arial", 0, 2, 0}), 1u);
  EXPECT_EQ(tables.tabs.Intern({{720}, {1440, TabKind::Right, 1}}), 1u);
  EXPECT_EQ(tables.tabs.Intern({{720}, {1440, TabKind::Right, 2}}), 2u);
  EXPECT_EQ(tables.tabs.Intern({{720}, {1440, TabKind::Right, 1}}), 1u);
  EXPECT_EQ(tables.kept.Intern({.before = "a", .instead = "b"}), 1u);
  EXPECT_EQ(tables.kept.Intern({.before = "b", .instead = "a"}), 2u);
  EXPECT_EQ(tables.kept.Intern({.before = "a", .instead = "b"}), 1u);
}

TEST(InternTable, AnswersTheDefaultWhenFull) {
  InternTable<std::uint32_t> table;
  const std::uint32_t most = InternTable<std::uint32_t>::kMost;
  for (std::uint32_t i = 0; i < most; ++i) ASSERT_EQ(table.Intern(i * 7), i);
  EXPECT_EQ(table.Intern(1), 0u);
  EXPECT_EQ(table.Intern(7 * 5), 5u);
  EXPECT_EQ(table.Size(), most);
}

}  // namespace
}  // namespace lumenote
