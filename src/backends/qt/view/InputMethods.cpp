#include "backends/qt/view/InputMethods.h"

#include <algorithm>

#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

ViewInput::Message MessageOf(const QInputMethodEvent& event) {
  ViewInput::Message message{.replaceFrom = event.replacementStart(),
                             .replaceLength = event.replacementLength(),
                             .committed = FromQString(event.commitString()),
                             .composed = FromQString(event.preeditString()),
                             .caret = static_cast<int>(event.preeditString().size())};
  for (const QInputMethodEvent::Attribute& attribute : event.attributes())
    if (attribute.type == QInputMethodEvent::Cursor) message.caret = attribute.start;
  return message;
}

QList<QTextLayout::FormatRange> FormatsOf(const QInputMethodEvent& event) {
  QList<QTextLayout::FormatRange> formats;
  for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
    if (attribute.type != QInputMethodEvent::TextFormat) continue;
    QTextLayout::FormatRange range;
    range.start = attribute.start;
    range.length = attribute.length;
    range.format = qvariant_cast<QTextFormat>(attribute.value).toCharFormat();
    formats.push_back(range);
  }
  return formats;
}

/// The answers about text and positions; null for any other query.
QVariant AnswerText(RichTextView& view, Qt::InputMethodQuery query) {
  const DocumentSurface& surface = view.Surface();
  const Selection around = view.Input().Surroundings();
  const auto text = [&](Selection range) {
    return QVariant(ToQString(surface.Content().Text(range.start, range.end)));
  };
  switch (query) {
    case Qt::ImSurroundingText:
      return text(around);
    case Qt::ImTextBeforeCursor:
      return text({around.start, surface.Caret()});
    case Qt::ImTextAfterCursor:
      return text({surface.Caret(), around.end});
    case Qt::ImCursorPosition:
      return surface.Caret() - around.start;
    case Qt::ImAnchorPosition:
      return std::clamp(surface.Anchor(), around.start, around.end) - around.start;
    case Qt::ImAbsolutePosition:
      return surface.Caret();
    case Qt::ImCurrentSelection:
      return text(view.Input().SelectedExcerpt());
    default:
      return {};
  }
}

QVariant AnswerInput(RichTextView& view, Qt::InputMethodQuery query) {
  const DocumentSurface& surface = view.Surface();
  switch (query) {
    case Qt::ImEnabled:
      return !view.IsLocked();
    case Qt::ImReadOnly:
      return view.IsLocked();
    case Qt::ImHints:
      return static_cast<int>(Qt::ImhMultiLine);
    case Qt::ImCursorRectangle: {
      const PixelRect caret = view.Pane().CaretAt(surface.Caret()).value_or(PixelRect());
      return ToQRect(caret).translated(view.viewport()->pos());
    }
    case Qt::ImFont: {
      CharStyles& styles = view.Layouter().styles;
      return styles.Of(surface.Content(), surface.InsertionFormat()).format.font();
    }
    default:
      return AnswerText(view, query);
  }
}

}  // namespace lumenote
