#include "backends/qt/text/QtPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "document/pictures/ImageSize.h"
#include "document/pictures/Orientation.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {

namespace {

constexpr double kMostPixels = 1 << 24;  // fewer than the cache has room for
constexpr double kMostSide = 1 << 13;

/// Plugins of the desktop read more formats, but no note should be able to call them.
const char* FormatName(PictureType type) {
  if (type == PictureType::Png) return "png";
  return type == PictureType::Jpeg ? "jpeg" : "bmp";
}

/// In proportion, but with no more pixels than that.
QSize Bounded(QSizeF size) {
  const double width = std::clamp(size.width(), 1.0, kMostSide);
  const double height = std::clamp(size.height(), 1.0, kMostSide);
  const double shrink = std::min(1.0, std::sqrt(kMostPixels / (width * height)));
  return {std::max(1, static_cast<int>(width * shrink)),
          std::max(1, static_cast<int>(height * shrink))};
}

/// In pixels of the whole image, at least one; null for all of it.
QRect PartOf(const PictureFrame& frame, QSize whole) {
  const auto cut = [](double from, double to, int side, int& start, int& length) {
    start = std::clamp(static_cast<int>(std::lround(from * side)), 0, side - 1);
    length = std::clamp(static_cast<int>(std::lround(to * side)) - start, 1, side - start);
  };
  if (whole.isEmpty()) return {};
  int left = 0, top = 0, width = 0, height = 0;
  cut(frame.left, frame.right, whole.width(), left, width);
  cut(frame.top, frame.bottom, whole.height(), top, height);
  const QRect part(left, top, width, height);
  return part.size() == whole ? QRect() : part;
}

QImage Upright(const QImage& image, const Orientation& turn) {
  const QTransform exchange(0, 1, 1, 0, 0, 0);
  return (turn.exchanged ? image.transformed(exchange) : image)
      .mirrored(turn.mirrored, turn.upsideDown);
}

/// As large as `size`, or as that part of the image if it may not grow.
QSize ScaledSize(QSize size, QSize part, bool mayGrow) {
  return mayGrow || part.isEmpty() ? size : size.boundedTo(part);
}

QtPicture Decoded(const std::string& file, const PictureFrame& frame, QSize size, bool mayGrow) {
  if (!IsDecodable(file)) return {};
  const PictureType type = *TypeOfImage(file);
  const Orientation turn = OrientationIn(frame, file);
  QByteArray bytes = QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, FormatName(type));
  const QRect part = PartOf(BeforeTurning(frame, turn), reader.size());
  reader.setClipRect(part);
  reader.setScaledSize(ScaledSize(turn.exchanged ? size.transposed() : size,
                                  part.isNull() ? reader.size() : part.size(), mayGrow));
  const QImage image = reader.read();
  if (image.isNull()) return {};
  return {Upright(image, turn).convertToFormat(QImage::Format_ARGB32_Premultiplied),
          type == PictureType::Jpeg};
}

}  // namespace

QtPicture QtPictures::Of(const Document& document, const InlineBox& box, QSizeF size) {
  const Key key{box.item, Bounded(size)};
  if (const QtPicture* known = pictures_.object(key)) return *known;
  QtPicture picture =
      Decoded(ImageFileOf(document.Formats().items[box.item]), box.frame, key.size, !forPaper);
  pictures_.insert(key, new QtPicture(picture), 1 + (picture.image.sizeInBytes() >> 10));
  return picture;
}

}  // namespace lumenote
