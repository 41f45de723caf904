#include "backends/qt/view/SelectionMime.h"

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

SelectionMime::SelectionMime(RichTextView& view, Of when)
    : view_(&view), edits_(view.Text().Edits()) {
  if (when == Of::Now) taken_.emplace(view.Surface());
}

RichTextView* SelectionMime::Source() const {
  const bool same = view_ && view_->IsAttached() && view_->Text().Edits() == edits_;
  return same ? view_ : nullptr;
}

std::optional<TextExcerpt> SelectionMime::Content() const {
  if (taken_) return taken_;
  if (!view_ || !view_->IsAttached()) return std::nullopt;
  return TextExcerpt(view_->Surface());
}

QStringList SelectionMime::formats() const {
  ClipboardContent names;
  names.text.emplace();
  names.rtf.emplace();
  names.html.emplace();
  return WriteMime(names)->formats();
}

QVariant SelectionMime::retrieveData(const QString& format, QMetaType type) const {
  const std::optional<TextExcerpt> content = hasFormat(format) ? Content() : std::nullopt;
  if (!content) return {};
  const bool html = format == QLatin1String("text/html");
  if (!html && format != QLatin1String("text/plain"))
    return QByteArray::fromStdString(content->Rtf());
  const QString text = html ? QString::fromStdString(content->Html()) : ToLines(content->Text());
  return type.id() == QMetaType::QByteArray ? QVariant(text.toUtf8()) : QVariant(text);
}

}  // namespace lumenote
