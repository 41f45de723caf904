#include "view/acts/ViewInput.h"

#include <algorithm>

namespace lumenote {

namespace {
// How much of the caret's paragraph, on either side, an input method gets to see.
constexpr Position kSurroundings = 500;
}  // namespace

void ViewInput::Take(const Message& message) {
  if (view_.IsLocked() || view_.IsCompleting()) return;
  view_.Compose({});
  if (message.replaceLength > 0) Replace(message);
  if (view_.IsAttached() && !message.committed.empty()) view_.Type(message.committed);
  if (!view_.IsAttached() || message.composed.empty()) return;
  view_.Compose({view_.Surface().Caret(), message.composed, message.caret});
}

void ViewInput::Replace(const Message& message) {
  DocumentSurface& surface = view_.Surface();
  const Position from = surface.Caret() + message.replaceFrom;
  view_.Act([&] {
    surface.UserSelect(from, from + message.replaceLength);
    if (message.committed.empty()) surface.Clear();
  });
}

Selection ViewInput::Surroundings() const {
  const Document& document = view_.Surface().Content();
  const Position caret = view_.Surface().Caret();
  const Position paragraph = document.ParagraphOf(caret);
  return {
      document.SnapBackward(std::max(document.ParagraphStart(paragraph), caret - kSurroundings)),
      document.SnapBackward(std::min(document.ParagraphEnd(paragraph), caret + kSurroundings))};
}

Selection ViewInput::SelectedExcerpt() const {
  const Selection selection = view_.Surface().Selected();
  return {selection.start, std::min(selection.end, selection.start + kSurroundings)};
}

}  // namespace lumenote
