#include "view/Window.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

void Screen::Move(const PixelShift& shift) {
  const auto row = [&](double y) { return pixels_.begin() + static_cast<int>(y) * width_; };
  if (shift.by < 0)
    std::copy(row(shift.top), row(shift.bottom), row(shift.top + shift.by));
  else
    std::copy_backward(row(shift.top), row(shift.bottom), row(shift.bottom + shift.by));
}

void Screen::Fill(const PixelRect& rect, const PixelRect& area, std::size_t value, double origin) {
  const auto edge = [](double at, double low, double high, int most) {
    return static_cast<int>(std::clamp(std::round(std::clamp(at, low, high)), 0.0, 1.0 * most));
  };
  const int left = edge(rect.left, area.left, area.right, width_);
  const int right = edge(rect.right, area.left, area.right, width_);
  const int bottom = edge(rect.bottom, area.top, area.bottom, height_);
  for (int y = edge(rect.top, area.top, area.bottom, height_); y < bottom; ++y) {
    const std::size_t look = value == 0 ? 0 : value * 1000 + static_cast<std::size_t>(y - origin);
    std::fill_n(pixels_.begin() + y * width_ + left, std::max(0, right - left),
                static_cast<std::uint32_t>(look));
  }
}

void Screen::PaintPiece(TextPane& pane, const ViewMarks& marks, const ShownPiece& item,
                        const PixelRect& area) {
  const Piece& piece = *item.piece;
  const auto isSelected = [&](Position at) {
    return at >= marks.selection.start && at < marks.selection.end;
  };
  for (int i = 0; i < std::ssize(piece.lines); ++i) {
    const PieceLine& line = piece.lines[static_cast<std::size_t>(i)];
    const double top = item.y + line.top;
    const auto fill = [&](double left, double right, std::size_t value) {
      left += pane.TextLeft();
      right += pane.TextLeft();
      Fill({left, top, right, top + line.height}, area, value, item.y + line.baseline - 500);
    };
    for (int unit = line.start; unit < line.end; ++unit) {
      const Position at = piece.ToPosition(unit);
      const std::size_t look = pane.Content().At(at) * std::size_t{64} +
                               pane.Content().CharFormatAt(at) * 2 + (isSelected(at) ? 1 : 0);
      fill(piece.CaretX(i, unit), piece.CaretX(i, unit + 1), look + 1);
    }
    const bool last = piece.closes && i + 1 == std::ssize(piece.lines);
    if (last && isSelected(piece.to)) fill(piece.XOf(piece.to), piece.XOf(piece.to) + 5, 7);
    for (const auto& [line, x] : piece.bullets)
      if (line == i) fill(x, x + 5, 8);
  }
}

void Screen::Paint(TextPane& pane, const ViewMarks& marks, const PixelRect& area) {
  Fill(area, area, 0);
  for (const ShownPiece& item : pane.Visible()) PaintPiece(pane, marks, item, area);
  for (const auto& caret : {marks.caret, marks.dropCaret})
    if (caret) Fill(*caret, area, 9, caret->top);
}

// --- the window

Window::Window(PixelSize size) : screen(size) {
  surface.TextMode(kTextModeRichMultilevel);
  pane.Margin(0);
  view.Resize(size);
  view.Zoom(1.5);
  view.Show(true);
  view.Focus(true);
  view.Settle();
}

void Window::Type(std::u16string_view marked) {
  surface.Text(Unmarked(marked));
  const auto [anchor, caret] = MarksOf(marked);
  surface.UserSelect(anchor, caret);
  view.Settle();
}

Screen Window::Fresh() {
  Screen fresh(pane.Size());
  fresh.Paint(pane, view.Marks(), {0, 0, pane.Size().width, pane.Size().height});
  return fresh;
}

void Window::ShowDamage(const Damage& damage) {
  if (!screen.Fits(pane.Size())) screen = Screen(pane.Size());
  if (damage.shift) screen.Move(*damage.shift);
  shifts += damage.shift ? 1 : 0;
  for (const PixelRect& area : damage.areas) {
    screen.Paint(pane, view.Marks(), area);
    painted += area.Width() * area.Height();
  }
}

// --- the whole layout

WholeLayout::WholeLayout(const Document& document, TextLayouter& layouter) {
  for (Position at = 0; at <= document.Length(); at = pieces_.back().piece->to + 2) {
    const Position paragraph = document.ParagraphEnd(document.ParagraphOf(at));
    auto piece = layouter.LayOut(document, {.from = at, .to = paragraph});
    const Position end = piece->to;
    longest_ = std::max(longest_, end - at);
    for (int i = 0, behind = 0; i < std::ssize(piece->lines); i = behind) {
      do ++behind;
      while (behind < std::ssize(piece->lines) && !piece->BeginsLine(document, behind));
      const bool last = behind == std::ssize(piece->lines);
      const Position next = last ? end : piece->LineStart(behind);
      const char16_t before = last ? u'\0' : document.At(next - 1);
      const Position ending = before == u'\v' ? 1 : before == u'\n' ? 2 : 0;
      lines_.push_back({piece->LineStart(i), next - ending, last ? end + 2 : next});
    }
    pieces_.push_back({std::move(piece), height_});
    height_ += pieces_.back().piece->height;
  }
  lines_.back().next = -1;
}

PixelPoint WholeLayout::PlaceOf(Position position) const {
  const auto holds = [&](const Placed& placed) { return placed.piece->Holds(position); };
  const Placed& found = *std::find_if(pieces_.begin(), pieces_.end(), holds);
  const auto line = static_cast<std::size_t>(found.piece->LineOf(position));
  return {found.piece->XOf(position), found.y + found.piece->lines[line].top};
}

Position WholeLayout::At(PixelPoint point) const {
  const auto below = std::find_if(pieces_.begin(), pieces_.end(), [&](const Placed& placed) {
    return point.y < placed.y + placed.piece->height;
  });
  const Placed& found = below == pieces_.end() ? pieces_.back() : *below;
  return found.piece->PositionAt(found.piece->LineAt(point.y - found.y, point.x), point.x);
}

}  // namespace lumenote
