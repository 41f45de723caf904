#include "surface/keys/CaretMotion.h"

#include <algorithm>

#include "surface/keys/Words.h"

namespace lumenote {

namespace {

constexpr int kPageWithoutView = 20;

/// The last caret position in a line. After the last character of a wrapped line the caret would
/// already be on the next line.
Position LastCaret(const Document& document, const Line& line) {
  if (line.end != line.next) return line.end;
  return std::max(line.start, document.SnapBackward(line.end - 1));
}

/// The lines of the row's cell nearest to `x`.
auto CellAt(const std::vector<CellLine>& row, float x) {
  const auto reaches = [&](const CellLine& line) { return x < line.right; };
  const auto line = std::ranges::find_if(row, reaches);
  const CellLine& nearest = line == row.end() ? row.back() : *line;
  const auto precedes = [](const CellLine& one, const CellLine& other) {
    return one.cell < other.cell;
  };
  return std::equal_range(row.begin(), row.end(), nearest, precedes);
}

}  // namespace

std::optional<Position> CaretMotion::Target(const KeyStroke& key) {
  if (const int lines = LinesOf(key)) return Vertically(lines);
  goal_.reset();
  const Document& document = core_.Content();
  const Position caret = core_.Caret();
  switch (key.name) {
    case KeyName::Left:
      return key.control ? PreviousWord(document, caret) : LeftOf(key.shift);
    case KeyName::Right:
      return key.control ? NextWord(document, caret) : RightOf(key.shift);
    case KeyName::Home:
      return key.control ? 0 : LineAt(caret).start;
    case KeyName::End:
      return key.control ? document.Length() : LineAt(caret).end;
    case KeyName::Up:
      return PreviousParagraph(document, caret);
    case KeyName::Down:
      return NextParagraph(document, caret);
    default:
      return std::nullopt;
  }
}

// Number of lines that the key moves by; 0 for a key that does not move vertically.
int CaretMotion::LinesOf(const KeyStroke& key) const {
  if (key.control) return 0;
  const SurfaceView* view = core_.View();
  const int page = view ? std::max(view->LinesPerPage(), 1) : kPageWithoutView;
  switch (key.name) {
    case KeyName::Up:
      return -1;
    case KeyName::Down:
      return 1;
    case KeyName::PageUp:
      return -page;
    case KeyName::PageDown:
      return page;
    default:
      return 0;
  }
}

// Vertical movement follows the lines on screen, at no extra cost; without a view, those of the
// line table.
Line CaretMotion::ShownLine(Position position) const {
  std::optional<Line> shown;
  if (core_.View()) shown = core_.View()->ShownLine(position);
  return shown ? *shown : core_.Lines().LineAt(position);
}

CaretMotion::CaretLine CaretMotion::LineAt(Position position) const {
  const CellLines row = breaker_.CellLines(core_.Content(), position);
  if (!row.empty())
    return LineOfCell(row,
                      std::prev(std::ranges::upper_bound(row, position, {}, &CellLine::start)));
  const Line line = ShownLine(position);
  return {line.start, LastCaret(core_.Content(), line), line.start - 1, line.next};
}

CaretMotion::CaretLine CaretMotion::LineOfCell(const CellLines& row,
                                               CellLines::const_iterator line) const {
  const Document& document = core_.Content();
  const Position end = row.back().end;
  const bool first = line == row.begin() || std::prev(line)->cell != line->cell;
  const bool last = std::next(line) == row.end() || std::next(line)->cell != line->cell;
  const Position behind = end < document.Length() ? end + 2 : -1;
  return {line->start, line->end, first ? row.front().start - 1 : std::prev(line)->start,
          last ? behind : std::next(line)->start};
}

Position CaretMotion::LeftOf(bool extend) const {
  if (core_.HasSelection() && !extend) return core_.Selected().start;
  return core_.Content().SnapBackward(std::max(core_.Caret() - 1, 0));
}

Position CaretMotion::RightOf(bool extend) const {
  if (core_.HasSelection() && !extend) return core_.Selected().end;
  const Document& document = core_.Content();
  return document.SnapForward(std::min(core_.Caret() + 1, document.Length()));
}

CaretMotion::CaretLine CaretMotion::Above(const CaretLine& line) const {
  const CellLines row = breaker_.CellLines(core_.Content(), line.above);
  if (row.empty() || row.back().end >= line.start) return LineAt(line.above);
  return LineOfCell(row, std::prev(CellAt(row, *goal_).second));
}

CaretMotion::CaretLine CaretMotion::Below(const CaretLine& line) const {
  const CellLines row = breaker_.CellLines(core_.Content(), line.below);
  if (row.empty() || row.front().start <= line.start) return LineAt(line.below);
  return LineOfCell(row, CellAt(row, *goal_).first);
}

Position CaretMotion::Vertically(int lines) {
  const Document& document = core_.Content();
  const CaretLine from = LineAt(core_.Caret());
  if (!goal_ || goalCaret_ != core_.Caret())
    goal_ = breaker_.XOf(document, from.start, core_.Caret());
  CaretLine to = from;
  for (; lines < 0 && to.above >= 0; ++lines) to = Above(to);
  for (; lines > 0 && to.below >= 0; --lines) to = Below(to);
  goalCaret_ = to == from ? core_.Caret() : breaker_.AtX(document, to.start, to.end, *goal_);
  return goalCaret_;
}

}  // namespace lumenote
