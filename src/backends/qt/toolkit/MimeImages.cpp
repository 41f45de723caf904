#include "backends/qt/toolkit/MimeImages.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QUrl>
#include <algorithm>
#include <iterator>

#include "document/pictures/ImageSize.h"

namespace lumenote {

namespace {

constexpr qint64 kLargestFile = 64 << 20;
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

/// Empty if the file is no image.
std::string ImageIn(const QUrl& address) {
  const QFileInfo info(address.toLocalFile());
  QFile file(info.filePath());
  if (!info.isFile() || info.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  if (IsKept(bytes.toStdString())) return bytes.toStdString();
  return PngOf(QImage::fromData(bytes)).toStdString();
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
    return PngOf(QImage::fromData(data(NameOf(PictureType::Jpeg))));
  }
};

}  // namespace

std::vector<std::string> ImageFilesOf(const QMimeData& data) {
  std::vector<std::string> files;
  for (const QUrl& address : data.urls()) {
    files.push_back(ImageIn(address));
    if (files.back().empty()) return {};
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
