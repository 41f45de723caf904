#include "backends/qt/view/SelectionMime.h"

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/QtText.h"
#include "rtf/write/Writer.h"

namespace lumenote {

SelectionMime::SelectionMime(RichTextView& view, Of when) : view_(&view), edits_(view.Edits()) {
  if (when == Of::Now) taken_ = Selected(view);
}

RichTextView* SelectionMime::Source() const {
  return view_ && view_->IsAttached() && view_->Edits() == edits_ ? view_ : nullptr;
}

SelectionMime::Part SelectionMime::Selected(const RichTextView& view) {
  return {view.Surface().Content(), view.Surface().Selected()};
}

std::optional<SelectionMime::Part> SelectionMime::Content() const {
  if (taken_) return taken_;
  if (!view_ || !view_->IsAttached()) return std::nullopt;
  return Selected(*view_);
}

QStringList SelectionMime::formats() const {
  ClipboardContent names;
  names.text.emplace();
  names.rtf.emplace();
  return WriteMime(names)->formats();
}

QVariant SelectionMime::retrieveData(const QString& format, QMetaType type) const {
  const std::optional<Part> part = hasFormat(format) ? Content() : std::nullopt;
  if (!part) return {};
  const auto& [document, range] = *part;
  if (format != QLatin1String("text/plain"))
    return QByteArray::fromStdString(WriteRtf(document, range.start, range.end));
  const QString text = ToLines(document.Text(range.start, range.end));
  return type.id() == QMetaType::QByteArray ? QVariant(text.toUtf8()) : QVariant(text);
}

}  // namespace lumenote
