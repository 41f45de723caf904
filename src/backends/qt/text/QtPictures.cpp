#include "backends/qt/text/QtPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>

#include "document/pictures/ImageSize.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {

namespace {

constexpr double kMostPixels = 1 << 24;

/// Plugins of the desktop read more formats, but no note should be able to call them.
const char* FormatName(PictureType type) {
  if (type == PictureType::Png) return "png";
  return type == PictureType::Jpeg ? "jpeg" : "bmp";
}

/// In proportion, but with no more pixels than that.
QSize Bounded(QSize size) {
  const double shrink = std::sqrt(kMostPixels / (1.0 * size.width() * size.height()));
  if (shrink >= 1) return size;
  return {std::max(1, static_cast<int>(size.width() * shrink)),
          std::max(1, static_cast<int>(size.height() * shrink))};
}

QImage Decoded(const std::string& file, QSize size) {
  const std::optional<PictureType> type = TypeOfImage(file);
  if (!type) return {};
  QByteArray bytes = QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, FormatName(*type));
  reader.setScaledSize(size);
  const QImage image = reader.read();
  return image.isNull() ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace

QImage QtPictures::Of(const Document& document, ItemId item, QSize size) {
  const Key key{item, Bounded(size.expandedTo({1, 1}))};
  if (const QImage* known = images_.object(key)) return *known;
  const QImage image = Decoded(ImageFileOf(document.Formats().items[item]), key.size);
  images_.insert(key, new QImage(image), 1 + (image.sizeInBytes() >> 10));
  return image;
}

}  // namespace lumenote
