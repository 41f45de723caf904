#include "backends/qt/toolkit/MimeContent.h"

#include <QTextDocumentFragment>
#include <algorithm>
#include <iterator>
#include <utility>

#include "backends/qt/toolkit/MimeImages.h"
#include "backends/qt/toolkit/QtText.h"
#include "surface/editing/PastedPictures.h"

namespace lumenote {

namespace {

constexpr const char* kRtfNames[] = {"text/rtf", "application/rtf", "Rich Text Format",
                                     "text/richtext",
                                     "application/x-qt-windows-mime;value=\"Rich Text Format\""};
constexpr int kWrittenNames = 3;  // the others are only read

std::optional<std::string> RtfOf(const QMimeData& data) {
  const auto name = std::ranges::find_if(
      kRtfNames, [&](const char* one) { return data.hasFormat(QLatin1String(one)); });
  if (name == std::end(kRtfNames)) return std::nullopt;
  const QByteArray bytes = data.data(QLatin1String(*name));
  if (bytes.isEmpty()) return std::nullopt;
  return bytes.toStdString();
}

std::optional<std::u16string> TextOf(const QMimeData& data) {
  QString text;
  if (data.hasText())
    text = data.text();
  else if (data.hasHtml())
    text = QTextDocumentFragment::fromHtml(data.html()).toPlainText();
  else
    return std::nullopt;
  // Some programs include a terminating NUL; other NULs belong to the text.
  while (text.endsWith(QChar(u'\0'))) text.chop(1);
  return WithCrLf(FromQString(text));
}

std::optional<std::string> HtmlOf(const QMimeData& data) {
  if (!data.hasHtml()) return std::nullopt;
  const std::string html = data.html().toStdString();
  return html.empty() ? std::nullopt : std::optional(html);
}

}  // namespace

ClipboardContent ReadMime(const QMimeData& data) {
  if (ClipboardContent files = ImageFilesOf(data); files.imagesTooLarge || !files.images.empty()) {
    files.imageNames = TextOf(data).value_or(u"");
    return files;
  }
  ClipboardContent content{TextOf(data), RtfOf(data), HtmlOf(data)};
  if (WantsImages(content)) content.images = ImagesOf(data);
  return content;
}

bool HasMimeContent(const QMimeData& data) {
  const auto isThere = [&](const char* name) { return data.hasFormat(QLatin1String(name)); };
  return data.hasText() || data.hasHtml() || HasImage(data) ||
         std::ranges::any_of(kRtfNames, isThere);
}

std::unique_ptr<QMimeData> WriteMime(const ClipboardContent& content) {
  auto data =
      content.images.empty() ? std::make_unique<QMimeData>() : OfferImage(content.images.front());
  if (content.text) data->setText(ToLines(*content.text));
  if (content.html) data->setHtml(QString::fromStdString(*content.html));
  if (!content.rtf) return data;
  const QByteArray bytes = QByteArray::fromStdString(*content.rtf);
  for (int i = 0; i < kWrittenNames; ++i) data->setData(QLatin1String(kRtfNames[i]), bytes);
  return data;
}

}  // namespace lumenote
