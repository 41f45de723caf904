#include "document/Document.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"

namespace lumenote {

Document::Document() : formats_(std::make_shared<FormatTables>()) {}

Position Document::ParagraphOf(Position position) const {
  if (position <= 0) return 0;
  const Position breaks = leaves_.BreaksBefore(position);
  return At(position) == u'\n' ? breaks - 1 : breaks;
}

Position Document::ParagraphStart(Position paragraph) const {
  paragraph = std::min(paragraph, leaves_.Breaks());
  return paragraph <= 0 ? 0 : leaves_.BreakAt(paragraph - 1) + 2;
}

Position Document::ParagraphEnd(Position paragraph) const {
  paragraph = std::max(paragraph, 0);
  return paragraph < leaves_.Breaks() ? leaves_.BreakAt(paragraph) : Length();
}

char16_t Document::At(Position position) const {
  if (position < 0 || position >= Length()) return 0;
  const LeafCursor leaf = leaves_.CursorAt(position);
  return leaf->text.View()[static_cast<std::size_t>(position - leaf.Start())];
}

std::u16string Document::Text(Position from, Position to) const {
  const Selection range = SnapOutward(from, to);
  std::u16string text;
  text.reserve(static_cast<std::size_t>(range.Length()));
  leaves_.ForEachLeaf(range.start, range.end,
                      [&](const Leaf& leaf, Position, Position first, Position last) {
                        leaf.Text(first, last).AppendTo(text);
                      });
  return text;
}

CharId Document::CharFormatAt(Position position) const {
  position = std::max(position, 0);
  if (position >= Length()) return mark_.character;
  const LeafCursor leaf = leaves_.CursorAt(position);
  return leaf->runs.FormatAt(position - leaf.Start());
}

ParaId Document::ParaFormatAt(Position position) const {
  const Position paragraph = ParagraphOf(position);
  return paragraph == leaves_.Breaks() ? mark_.paragraph : leaves_.MarkAt(paragraph);
}

Fragment Document::Copy(Position from, Position to) const {
  const Selection range = SnapOutward(from, to);
  return {leaves_.Slice(range.start, range.end), std::nullopt};
}

Fragment Document::Replace(Selection range, Fragment fragment) {
  Fragment removed{leaves_.Replace(range.start, range.end, std::move(fragment.leaves)), {}};
  ++version_;
  if (fragment.mark) removed.mark = std::exchange(mark_, *fragment.mark);
  return removed;
}

Position Document::SnapBackward(Position position) const {
  position = std::clamp(position, 0, Length());
  return InsidePair(position) ? position - 1 : position;
}

Position Document::SnapForward(Position position) const {
  position = std::clamp(position, 0, Length());
  return InsidePair(position) ? position + 1 : position;
}

Selection Document::SnapOutward(Position from, Position to) const {
  from = std::clamp(from, 0, Length());
  to = std::clamp(to, from, Length());
  if (to > from && At(to - 1) == u'\r') ++to;
  if (At(from - 1) != u'\r') return {from, to};
  return {from - 1, to > from ? to : from - 1};
}

bool Document::InsidePair(Position position) const {
  const char16_t next = At(position);
  if (next == u'\n') return true;
  return IsLowSurrogate(next) && IsHighSurrogate(At(position - 1));
}

}  // namespace lumenote
