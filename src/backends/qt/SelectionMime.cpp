#include "backends/qt/SelectionMime.h"

#include "backends/qt/MimeContent.h"
#include "backends/qt/QtText.h"

namespace lumenote {

QStringList SelectionMime::formats() const {
  ClipboardContent names;
  names.text.emplace();
  names.rtf.emplace();
  return WriteMime(names)->formats();
}

QVariant SelectionMime::retrieveData(const QString& format, QMetaType type) const {
  if (!view_ || !view_->IsAttached() || !hasFormat(format)) return {};
  const DocumentSurface& surface = view_->Surface();
  if (format != QLatin1String("text/plain")) {
    const std::u16string rtf = surface.SelRTF();
    return QByteArray::fromStdString(std::string(rtf.begin(), rtf.end()));
  }
  const QString text = ToLines(surface.SelText());
  return type.id() == QMetaType::QByteArray ? QVariant(text.toUtf8()) : QVariant(text);
}

}  // namespace lumenote
