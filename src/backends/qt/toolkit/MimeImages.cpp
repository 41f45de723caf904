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

namespace lumenote {

namespace {

constexpr qint64 kRoom = 64 << 20;                             // bytes of all files together
constexpr const char* kNames[] = {"image/png", "image/jpeg"};  // indexed by PictureType

QString NameOf(PictureType type) { return QLatin1String(kNames[static_cast<std::size_t>(type)]); }

bool IsNamed(const QString& name) {
  return std::ranges::any_of(kNames, [&](const char* one) { return name == QLatin1String(one); });
}

/// Whether the bytes are in a format that notes hold.
bool IsKept(const std::string& file) {
  const auto type = TypeOfImage(file);
  return type && IsKeptFile(*type);
}

QByteArray PngOf(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (image.isNull() || !image.save(&buffer, "PNG")) return {};
  return buffer.data();
}

/// Null if the data are no image, or a huge one.
QImage Decoded(QIODevice& data) {
  QImageReader reader(&data);
  const QSize size = reader.size();
  const bool sound = !size.isEmpty() && 1.0 * size.width() * size.height() <= kMostImagePixels;
  return sound ? reader.read() : QImage();
}

/// Empty if the file is no image, or larger than the room. The head of others will do.
std::string ImageIn(const QUrl& address, qint64 room) {
  constexpr qint64 kHead = 16;
  const QFileInfo info(address.toLocalFile());
  QFile file(info.filePath());
  if (!info.isFile() || info.size() > room || !file.open(QIODevice::ReadOnly)) return {};
  if (IsKept(file.peek(kHead).toStdString())) return file.readAll().toStdString();
  return PngOf(Decoded(file)).toStdString();
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

std::vector<std::string> ImageFilesOf(const QMimeData& data) {
  std::vector<std::string> files;
  qint64 room = kRoom;
  for (const QUrl& address : data.urls()) {
    files.push_back(ImageIn(address, room));
    if (files.back().empty()) return {};
    room -= static_cast<qint64>(files.back().size());
  }
  return files;
}

// The format that is offered first is the image's own.
std::vector<std::string> ImagesOf(const QMimeData& data) {
  for (const QString& name : data.formats()) {
    if (!IsNamed(name)) continue;
    std::string file = data.data(name).toStdString();
    if (IsKept(file)) return {std::move(file)};
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
  if (IsKept(file)) data->setData(NameOf(*TypeOfImage(file)), QByteArray::fromStdString(file));
  return data;
}

}  // namespace lumenote
