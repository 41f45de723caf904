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
      return key.control ? document.Length() : LastCaret(document, LineAt(caret));
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
Line CaretMotion::LineAt(Position position) const {
  std::optional<Line> shown;
  if (core_.View()) shown = core_.View()->ShownLine(position);
  return shown ? *shown : core_.Lines().LineAt(position);
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

Position CaretMotion::Vertically(int lines) {
  const Document& document = core_.Content();
  const Line from = LineAt(core_.Caret());
  if (!goal_ || goalCaret_ != core_.Caret())
    goal_ = breaker_.XOf(document, from.start, core_.Caret());
  Line to = from;
  for (; lines < 0 && to.start > 0; ++lines) to = LineAt(to.start - 1);
  for (; lines > 0 && to.next >= 0; --lines) to = LineAt(to.next);
  goalCaret_ = to == from ? core_.Caret()
                          : breaker_.AtX(document, to.start, LastCaret(document, to), *goal_);
  return goalCaret_;
}

}  // namespace lumenote
