#include "view/acts/AccessibleText.h"

#include <algorithm>

#include "base/Strings.h"
#include "document/tables/TableRow.h"
#include "view/pane/RangeBoxes.h"

namespace lumenote {

std::u16string AccessibleText::Text(Selection range) const {
  return Content().Text(std::max(range.start, 0), std::max(range.end, 0));
}

Selection AccessibleText::Visible() const {
  TextPane& pane = view_.Pane();
  return {pane.PositionAt({0, 0}), pane.PositionAt({pane.Size().width, pane.Size().height})};
}

Selection AccessibleText::LineAt(Position offset) const { return view_.Pane().CellLine(offset); }

Selection AccessibleText::At(Position offset, TextUnit unit) const {
  offset = std::clamp(offset, 0, Content().Length());
  return unit == TextUnit::Line ? LineAt(offset) : UnitAt(Content(), offset, unit);
}

Selection AccessibleText::Before(Position offset, TextUnit unit) const {
  const Selection here = At(offset, unit);
  return here.start > 0 ? At(here.start - 1, unit) : Selection{};
}

Selection AccessibleText::Behind(Position offset, TextUnit unit) const {
  const Selection here = At(offset, unit);
  const Position length = Content().Length();
  return here.end < length ? At(here.end, unit) : Selection{length, length};
}

void AccessibleText::Replace(Selection range, std::u16string_view text) {
  if (view_.IsLocked()) return;
  view_.Act([&] {
    view_.Surface().UserSelect(range.start, range.end);
    if (text.empty())
      view_.Surface().Clear();
    else
      view_.Surface().UserType(WithCrLf(text));
  });
}

std::optional<PixelRect> AccessibleText::BoxOf(Position offset) const {
  TextPane& pane = view_.Pane();
  const std::optional<PixelRect> line = pane.LineAt(offset);
  const std::optional<PixelRect> left = pane.CaretAt(offset);
  const std::optional<PixelRect> right = pane.CaretAt(offset + 1);
  if (!line || !left) return std::nullopt;
  const bool sameLine = right && right->top == left->top;
  return PixelRect{left->left, line->top, sameLine ? right->left : left->left + 1, line->bottom};
}

std::vector<PixelRect> AccessibleText::BoxesOf(Selection range) const {
  const TextPane& pane = view_.Pane();
  const PixelSize size = pane.Size();
  std::vector<PixelRect> boxes;
  for (const ShownPiece& shown : view_.Pane().Visible())
    for (const RangeBox& one : lumenote::BoxesOf(pane, shown, range)) {
      const PixelRect box{std::max(one.box.left, 0.0), std::max(one.box.top, 0.0),
                          std::min(one.box.right, size.width),
                          std::min(one.box.bottom, size.height)};
      if (!box.IsEmpty()) boxes.push_back(box);
    }
  return boxes;
}

void AccessibleText::Reveal(Selection range) {
  view_.Pane().Reveal(range.end);
  view_.Pane().Reveal(range.start);
  view_.Settle();
}

std::optional<AccessibleText::Run> AccessibleText::RunAt(Position offset) const {
  if (offset < 0 || offset >= Length()) return std::nullopt;
  const FormatTables& formats = Content().Formats();
  return Run{UnitAt(Content(), offset, TextUnit::Run),
             formats.characters[Content().CharFormatAt(offset)],
             formats.paragraphs[ParagraphAround(Content(), offset).format].alignment};
}

}  // namespace lumenote
