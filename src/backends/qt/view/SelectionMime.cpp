#include "backends/qt/view/SelectionMime.h"

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/MimeImages.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

SelectionMime::SelectionMime(RichTextView& view) : view_(&view) {}

SelectionMime::SelectionMime(RichTextView& view, const TextDrag& drag)
    : view_(&view), drag_(drag) {}

std::optional<TextDrag> SelectionMime::DragFrom(const RichTextView& view) const {
  return view_ == &view ? drag_ : std::nullopt;
}

std::optional<TextExcerpt> SelectionMime::Content() const {
  if (drag_) return drag_->Text();
  if (!view_ || !view_->IsAttached()) return std::nullopt;
  return TextExcerpt(view_->Surface());
}

QStringList SelectionMime::formats() const {
  ClipboardContent names;
  names.text.emplace();
  names.rtf.emplace();
  names.html.emplace();
  if (const auto content = Content()) names.images = content->Images();
  return WriteMime(names)->formats();
}

QVariant SelectionMime::retrieveData(const QString& format, QMetaType type) const {
  const std::optional<TextExcerpt> content = hasFormat(format) ? Content() : std::nullopt;
  if (!content) return {};
  if (const auto images = content->Images(); !images.empty())
    if (const auto image = OfferImage(images.front()); image->hasFormat(format))
      return image->data(format);
  const bool html = format == QLatin1String("text/html");
  if (!html && format != QLatin1String("text/plain"))
    return QByteArray::fromStdString(content->Rtf());
  const QString text = html ? QString::fromStdString(content->Html()) : ToLines(content->Text());
  return type.id() == QMetaType::QByteArray ? QVariant(text.toUtf8()) : QVariant(text);
}

}  // namespace lumenote
