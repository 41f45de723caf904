// Thousands of random edits, undone and redone, against a naive model.
#include "Model.h"
#include "document/undo/Undo.h"

namespace lumenote {
namespace {

/// A document with its history, and beside it every state that can be undone or redone to.
class RandomEdits {
 public:
  explicit RandomEdits(unsigned seed) : dice_(seed) {
    for (int i = 0; i < 5; ++i) document_.Formats().characters.Intern({.size = Size(i)});
    for (int i = 0; i < 4; ++i) document_.Formats().paragraphs.Intern({.spaceAfter = i});
  }

  void Run(int steps) {
    for (int i = 0; i < steps && !testing::Test::HasFailure(); ++i) {
      Act();
      Check();
    }
    while (state_ > 0 && !testing::Test::HasFailure()) {
      Undo();
      Check();
    }
  }

 private:
  static std::uint16_t Size(int i) { return static_cast<std::uint16_t>(20 + i); }

  const Model& Now() const { return states_[state_]; }

  void Act() {
    // Long notes are cut back, so that every size up to a few leaves is met.
    const Position most = Now().Length() > 20000 ? 15000 : dice_.Below(3) == 0 ? 3000 : 4;
    switch (dice_.Below(10)) {
      case 0:
        return Undo();
      case 1:
        return Redo();
      case 2:
        return Paste();
      case 3:
        return MapFormats();
      case 4:
        return Insert(dice_.Below(8) == 0 ? 6000 : 60, dice_.UpTo(most));
      case 5:
        return Insert(0, dice_.UpTo(most));
      default:
        return Insert(dice_.UpTo(5), dice_.Below(3) == 0 ? dice_.UpTo(4) : 0);
    }
  }

  /// A random range that cuts no break.
  Selection Range(Position length) {
    Selection range;
    range.start = dice_.UpTo(Now().Length());
    range.end = std::min(range.start + length, Now().Length());
    return document_.Outwards(range.start, range.end);
  }

  void Insert(Position length, Position removed) {
    const Selection range = Range(removed);
    Model piece;
    Fragment fragment = RandomFragment(dice_, length, piece);
    Apply(range, std::move(fragment), piece, false);
  }

  void Paste() {
    const Selection source = Range(dice_.UpTo(3000));
    Model piece;
    piece.Add(Now(), source.start, source.end);
    Apply(Range(dice_.UpTo(10)), document_.Copy(source.start, source.end), piece, false);
  }

  void MapFormats() {
    const Selection range = Range(dice_.UpTo(5000));
    const bool withMark = dice_.Below(2) == 0;
    const auto character = [](CharId format) { return format == 2 ? CharId{3} : format; };
    const auto paragraph = [](ParaId format) { return (format + 1) % 4; };
    auto mapped = document_.MapFormats(range.start, range.end, character, paragraph, withMark);
    Model piece;
    piece.Add(Now(), range.start, range.end);
    piece.mark = Now().mark;
    for (Position i = 0; i < piece.Length(); ++i) {
      piece.characters[i] = character(piece.characters[i]);
      if (piece.text[i] == u'\r') piece.paragraphs[i] = paragraph(piece.paragraphs[i]);
    }
    if (withMark) piece.mark = {character(piece.mark.character), paragraph(piece.mark.paragraph)};
    Model before;
    before.Add(Now(), range.start, range.end);
    before.mark = Now().mark;
    ASSERT_EQ(mapped.has_value(), piece != before);
    if (mapped) Apply(range, *std::move(mapped), piece, withMark);
  }

  void Apply(Selection range, Fragment fragment, const Model& piece, bool withMark) {
    if (range.Length() == 0 && piece.text.empty() && !withMark) return;
    Model next = Now().Replaced(range.start, range.end, piece);
    if (withMark) next.mark = piece.mark;
    history_.Begin(UndoKind::Unknown, range);
    history_.Apply(range.start, range.end, std::move(fragment));
    history_.End(range);
    states_.resize(state_ + 1);
    states_.push_back(std::move(next));
    ++state_;
  }

  void Undo() {
    ASSERT_EQ(history_.Undo().has_value(), state_ > 0);
    state_ -= state_ > 0;
  }
  void Redo() {
    const bool can = state_ + 1 < states_.size();
    ASSERT_EQ(history_.Redo().has_value(), can);
    state_ += can;
  }

  void Check() {
    const Model& model = Now();
    ASSERT_EQ(ModelOf(document_.Leaves(), document_.Mark()), model);
    const Position at = dice_.UpTo(model.Length());
    const std::u16string_view before = std::u16string_view(model.text).substr(0, at);
    const bool inside = at < model.Length() && model.text[at] == u'\n';
    ASSERT_EQ(document_.ParagraphOf(at), CountBreaks(before) - inside);
    const std::size_t lineEnd = before.rfind(u'\n');
    ASSERT_EQ(document_.ParagraphStart(document_.ParagraphOf(at)),
              lineEnd == before.npos ? 0 : static_cast<Position>(lineEnd) + 1);
    const std::size_t end = std::min(model.text.find(u'\r', at - inside), model.text.size());
    ASSERT_EQ(document_.ParagraphEnd(document_.ParagraphOf(at)), static_cast<Position>(end));
    ASSERT_EQ(document_.ParaFormatAt(at),
              end < model.text.size() ? model.paragraphs[end] : model.mark.paragraph);
    ASSERT_EQ(document_.CharFormatAt(at),
              at < model.Length() ? model.characters[at] : model.mark.character);
  }

  Dice dice_;
  Document document_;
  UndoHistory history_{document_};
  std::vector<Model> states_{Model{}};
  std::size_t state_ = 0;
};

TEST(RandomEdits, AgreeWithTheModel) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    RandomEdits(seed).Run(400);
    if (HasFailure()) return;
  }
}

TEST(RandomEdits, LeaveNoCrumbs) {
  Dice dice(7);
  Document document;
  Model piece;
  document.Replace(0, 0, RandomFragment(dice, 1200000, piece));
  std::u16string text = piece.text;
  for (int i = 0; i < 3000; ++i) {
    const Position from = document.Before(dice.UpTo(document.Length()));
    const Position to = document.After(from + dice.Below(i % 10 == 0 ? 3000 : 300));
    const Fragment inserted = RandomFragment(dice, dice.Below(50), piece);
    document.Replace(from, to, inserted);
    text.replace(from, to - from, piece.text);
  }
  ASSERT_EQ(document.Text(0, document.Length()), text);
  Position leaves = 0;
  for (LeafCursor leaf = document.Leaves().CursorAt(0); !leaf.AtEnd(); leaf.Next()) ++leaves;
  EXPECT_LT(leaves, document.Length() / 512 + 32);
}

}  // namespace
}  // namespace lumenote
