#include "surface/keys/CaretMotion.h"

#include <algorithm>

#include "surface/keys/Words.h"

namespace lumenote {

namespace {

constexpr int kPageWithoutView = 20;

/// The last place of the caret in a line. Behind the last character of a wrapped line it would
/// already stand in the following one.
Position LastCaret(const Document& document, const Line& line) {
  if (line.end != line.next) return line.end;
  return std::max(line.start, document.Before(line.end - 1));
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

// How many lines the key moves; 0 when it is none of the keys that do.
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

// The user goes by the lines seen, which cost nothing more; without a view, by the line table's.
Line CaretMotion::LineAt(Position position) const {
  std::optional<Line> shown;
  if (core_.View()) shown = core_.View()->ShownLine(position);
  return shown ? *shown : core_.Lines().LineAt(position);
}

Position CaretMotion::LeftOf(bool extend) const {
  if (core_.HasSelection() && !extend) return core_.Selected().start;
  return core_.Content().Before(std::max(core_.Caret() - 1, 0));
}

Position CaretMotion::RightOf(bool extend) const {
  if (core_.HasSelection() && !extend) return core_.Selected().end;
  const Document& document = core_.Content();
  return document.After(std::min(core_.Caret() + 1, document.Length()));
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
