#include "backends/qt/toolkit/MimeImages.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>
#include <algorithm>
#include <iterator>

#include "document/pictures/ImageSize.h"
#include "surface/editing/PastedPictures.h"

namespace lumenote {

namespace {

constexpr const char* kNames[] = {"image/png", "image/jpeg"};  // indexed by PictureType

QString NameOf(PictureType type) { return QLatin1String(kNames[static_cast<std::size_t>(type)]); }

bool IsNamed(const QString& name) {
  return std::ranges::any_of(kNames, [&](const char* one) { return name == QLatin1String(one); });
}

QByteArray PngOf(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (image.isNull() || !image.save(&buffer, "PNG")) return {};
  return buffer.data();
}

/// Upright; null if the data are no image, or a huge one.
QImage Decoded(QIODevice& data) {
  QImageReader reader(&data);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  const bool sound = !size.isEmpty() && 1.0 * size.width() * size.height() <= kMostImagePixels;
  return sound ? reader.read() : QImage();
}

/// Adds a file that is an image, or that it is too large; false if it is none. The head of others
/// will do.
bool AddImage(const QUrl& address, std::uint64_t& room, ClipboardContent& content) {
  constexpr qint64 kHead = 16;
  const QFileInfo info(address.toLocalFile());
  QFile file(info.filePath());
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const bool kept = IsPicture(file.peek(kHead).toStdString());
  std::string image;
  if (!kept) image = PngOf(Decoded(file)).toStdString();
  const std::uint64_t size = kept ? static_cast<std::uint64_t>(info.size()) : image.size();
  if (size == 0) return false;
  content.imagesTooLarge |= size > room;
  if (content.imagesTooLarge) return true;
  room -= size;
  content.images.push_back(kept ? file.readAll().toStdString() : std::move(image));
  return true;
}

class ImageMime final : public QMimeData {
 public:
  QStringList formats() const override {
    QStringList names = QMimeData::formats();
    const QString png = NameOf(PictureType::Png);
    if (names.contains(NameOf(PictureType::Jpeg)) && !names.contains(png)) names.append(png);
    return names;
  }
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override {
    const bool made = format == NameOf(PictureType::Png) && !QMimeData::formats().contains(format);
    if (!made) return QMimeData::retrieveData(format, type);
    QByteArray jpeg = data(NameOf(PictureType::Jpeg));
    QBuffer buffer(&jpeg);
    return PngOf(Decoded(buffer));
  }
};

}  // namespace

ClipboardContent ImageFilesOf(const QMimeData& data) {
  ClipboardContent content;
  std::uint64_t room = kMostImageBytes;
  for (const QUrl& address : data.urls())
    if (!AddImage(address, room, content)) return {};
  if (content.imagesTooLarge) content.images.clear();
  return content;
}

// The format that is offered first is the image's own.
std::vector<std::string> ImagesOf(const QMimeData& data) {
  for (const QString& name : data.formats()) {
    if (!IsNamed(name)) continue;
    std::string file = data.data(name).toStdString();
    if (IsPicture(file)) return {std::move(file)};
  }
  const QByteArray png = PngOf(qvariant_cast<QImage>(data.imageData()));
  if (png.isEmpty()) return {};
  return {png.toStdString()};
}

bool HasImage(const QMimeData& data) {
  return data.hasImage() || std::ranges::any_of(data.formats(), IsNamed);
}

std::unique_ptr<QMimeData> OfferImage(const std::string& file) {
  auto data = std::make_unique<ImageMime>();
  if (IsPicture(file)) data->setData(NameOf(*TypeOfImage(file)), QByteArray::fromStdString(file));
  return data;
}

}  // namespace lumenote
