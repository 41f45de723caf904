#include "backends/qt/view/ViewInput.h"

#include <algorithm>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

namespace {

// So much of the caret's paragraph is told to an input method on either side.
constexpr Position kSurroundings = 500;

/// The text around the caret that an input method is told of.
struct Surroundings {
  Position from;
  Position to;

  explicit Surroundings(const DocumentSurface& surface) {
    const Document& document = surface.Content();
    const Position caret = surface.Caret();
    const Position paragraph = document.ParagraphOf(caret);
    from = document.Before(std::max(document.ParagraphStart(paragraph), caret - kSurroundings));
    to = document.Before(std::min(document.ParagraphEnd(paragraph), caret + kSurroundings));
  }
};

}  // namespace

void ViewInput::Compose(const QInputMethodEvent& event) {
  if (view_.IsLocked()) return;
  view_.Composing({});
  if (event.replacementLength() > 0) Replace(event);
  if (view_.IsAttached() && !event.commitString().isEmpty()) view_.Type(event.commitString());
  if (view_.IsAttached()) ShowPreedit(event);
}

void ViewInput::Replace(const QInputMethodEvent& event) {
  DocumentSurface& surface = view_.Surface();
  const Position from = surface.Caret() + event.replacementStart();
  const Position to = from + event.replacementLength();
  view_.Act([&] {
    surface.UserSelect(from, to);
    if (event.commitString().isEmpty()) surface.Clear();
  });
}

void ViewInput::ShowPreedit(const QInputMethodEvent& event) {
  Preedit preedit;
  preedit.text = event.preeditString();
  if (preedit.text.isEmpty()) return;
  preedit.at = view_.Surface().Caret();
  preedit.caret = static_cast<int>(preedit.text.size());
  for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
    if (attribute.type == QInputMethodEvent::Cursor) preedit.caret = attribute.start;
    if (attribute.type != QInputMethodEvent::TextFormat) continue;
    QTextLayout::FormatRange range;
    range.start = attribute.start;
    range.length = attribute.length;
    range.format = qvariant_cast<QTextFormat>(attribute.value).toCharFormat();
    preedit.formats.push_back(range);
  }
  view_.Composing(preedit);
}

QVariant ViewInput::Query(Qt::InputMethodQuery query) const {
  const DocumentSurface& surface = view_.Surface();
  const Document& document = surface.Content();
  const Surroundings around(surface);
  const auto text = [&](Position from, Position to) {
    return QVariant(ToQString(document.Text(from, to)));
  };
  switch (query) {
    case Qt::ImEnabled:
      return !view_.IsLocked();
    case Qt::ImReadOnly:
      return view_.IsLocked();
    case Qt::ImHints:
      return static_cast<int>(Qt::ImhMultiLine);
    case Qt::ImCursorRectangle: {
      const QPointF corner = view_.viewport()->pos();
      return view_.Pane().CaretAt(surface.Caret()).value_or(QRectF()).translated(corner);
    }
    case Qt::ImFont: {
      CharStyles& styles = view_.Pane().Layouter().styles;
      return styles.Of(document, surface.InsertionFormat()).format.font();
    }
    case Qt::ImSurroundingText:
      return text(around.from, around.to);
    case Qt::ImTextBeforeCursor:
      return text(around.from, surface.Caret());
    case Qt::ImTextAfterCursor:
      return text(surface.Caret(), around.to);
    case Qt::ImCursorPosition:
      return surface.Caret() - around.from;
    case Qt::ImAnchorPosition:
      return std::clamp(surface.Anchor(), around.from, around.to) - around.from;
    case Qt::ImAbsolutePosition:
      return surface.Caret();
    case Qt::ImCurrentSelection: {
      const Selection selection = surface.Selected();
      return text(selection.start, std::min(selection.end, selection.start + kSurroundings));
    }
    default:
      return {};
  }
}

}  // namespace lumenote
