#include "surface/keys/CaretMotion.h"

#include <algorithm>
#include <cstdlib>

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
  if (const auto line = breaker_.FindCellLine(core_.Content(), position, CellStep::Here, 0))
    return LineOfCell(*line);
  const Line line = ShownLine(position);
  return {line.start, LastCaret(core_.Content(), line), line.start - 1, line.next};
}

CaretMotion::CaretLine CaretMotion::LineOfCell(const CellLine& line) const {
  const Position behind = line.row.end < core_.Content().Length() ? line.row.end + 2 : -1;
  return {line.start, line.end, line.row.start - 1, behind, true};
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

CaretMotion::CaretLine CaretMotion::Beside(const CaretLine& line, bool below) const {
  const auto find = [&](Position position, CellStep step) {
    return breaker_.FindCellLine(core_.Content(), position, step, *goal_);
  };
  if (line.inCell)
    if (const auto next = find(line.start, below ? CellStep::Below : CellStep::Above))
      return LineOfCell(*next);
  const Position beside = below ? line.below : line.above;
  if (beside < 0) return line;
  const auto entered = find(beside, below ? CellStep::Topmost : CellStep::Lowest);
  return entered ? LineOfCell(*entered) : LineAt(beside);
}

Position CaretMotion::Vertically(int lines) {
  const Document& document = core_.Content();
  const CaretLine from = LineAt(core_.Caret());
  if (!goal_ || goalCaret_ != core_.Caret())
    goal_ = breaker_.XOf(document, from.start, core_.Caret());
  CaretLine to = from;
  for (int moved = 0; moved < std::abs(lines); ++moved) {
    const CaretLine next = Beside(to, lines > 0);
    if (next == to) break;
    to = next;
  }
  goalCaret_ = to == from ? core_.Caret() : breaker_.AtX(document, to.start, to.end, *goal_);
  return goalCaret_;
}

}  // namespace lumenote
