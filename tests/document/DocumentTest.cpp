// What the document shares, tidies up and refuses; edits themselves meet a model in surface.
#include <tuple>

#include "Model.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

TEST(Document, MovesEdgesOutOfPairs) {
  Document document;
  document.Replace(0, 0, PlainFragment(u"a\nb\U0001F33C", 0, 0));  // a CR LF b and a pair
  const std::tuple<Position, Position, Selection> rows[] = {{-1, 99, {0, 6}}, {2, 2, {1, 1}},
                                                            {0, 2, {0, 3}},   {2, 4, {1, 4}},
                                                            {3, 1, {3, 3}},   {9, 2, {6, 6}}};
  for (const auto& [from, to, outwards] : rows)
    EXPECT_EQ(document.SnapOutward(from, to), outwards) << from << ".." << to;
}

TEST(Document, MapsEachFormatOnceAndSharesTheText) {
  Document document;
  for (std::uint16_t size : {30, 40}) document.Formats().characters.Intern({.size = size});
  FragmentBuilder builder;
  for (int i = 0; i < 2000; ++i) builder.Append(u"some words ", i % 2);
  document.Replace(0, 0, builder.Finish());
  int asked = 0;
  const auto toTwo = [&](CharId) { return ++asked, CharId{2}; };
  const auto mapped = document.MapFormats(0, document.Length(), toTwo, {}, true);
  ASSERT_TRUE(mapped);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(mapped->mark, (FinalMark{2, 0}));
  const auto first = [](const LeafList& leaves) { return leaves.CursorAt(0)->text.View(); };
  const auto where = [](auto text) { return static_cast<const void*>(text.data()); };
  EXPECT_EQ(first(mapped->leaves).Visit(where), first(document.Leaves()).Visit(where));
  document.Replace(0, document.Length(), *mapped);
  EXPECT_FALSE(document.MapFormats(0, document.Length(), toTwo, {}, true));
}

TEST(Document, EditsLeaveNoCrumbs) {
  Dice dice(7);
  Document document;
  Model piece;
  document.Replace(0, 0, RandomFragment(dice, 1200000, piece));
  std::u16string text = piece.text;
  for (int i = 0; i < 3000; ++i) {
    const Position from = document.SnapBackward(dice.UpTo(document.Length()));
    const Position to = document.SnapForward(from + dice.Below(i % 10 == 0 ? 3000 : 300));
    const Fragment inserted = RandomFragment(dice, dice.Below(50), piece);
    document.Replace(from, to, inserted);
    text.replace(from, to - from, piece.text);
  }
  ASSERT_EQ(document.Text(0, document.Length()), text);
  Position leaves = 0;
  for (LeafCursor leaf = document.Leaves().CursorAt(0); !leaf.AtEnd(); leaf.Next()) ++leaves;
  EXPECT_LT(leaves, document.Length() / 512 + 32);
}

TEST(Document, RefusesToOutgrowAPosition) {
  Document document;
  document.Replace(0, 0, PlainFragment(std::u16string(1 << 16, u'x'), 0, 0));
  for (int i = 0; i < 14; ++i) {
    document.Replace(document.Length(), document.Length(), document.Copy(0, document.Length()));
  }
  const Position length = document.Length();
  ASSERT_EQ(length, 1 << 30);
  const auto twice = document.Copy(0, length);
  EXPECT_THROW(document.Replace(5, 5, twice), RuntimeError);
  EXPECT_EQ(document.Length(), length);
  document.Replace(1, 2, twice);
  EXPECT_EQ(document.Length(), LeafList::kMax);
  EXPECT_THROW(document.Replace(0, 0, PlainFragment(u"x", 0, 0)), RuntimeError);
}

TEST(LeafText, HoldsBytesUntilOneIsMissing) {
  const auto unitSize = [](const LeafText& text) {
    return text.View().Visit([](auto own) { return sizeof(own[0]); });
  };
  LeafText text(u"l\u2019été");
  EXPECT_EQ(unitSize(text), 1u);
  const LeafText shared = text;
  text.Replace(1, 1, u"\u2192");
  EXPECT_EQ(text.View().String(), u"l\u2192été");
  EXPECT_EQ(shared.View().String(), u"l\u2019été");
  text.Replace(1, 1, shared.View().Part(0, 2));
  EXPECT_EQ(text.View().String(), u"ll\u2019été");
  EXPECT_EQ(unitSize(text), 2u);
  EXPECT_EQ(unitSize(LeafText(text.View())), 1u);
  EXPECT_EQ(unitSize(LeafText(std::u16string_view(u"a\0b", 3))), 2u);
}

}  // namespace
}  // namespace lumenote
