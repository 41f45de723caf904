#include "backends/qt/text/BoxPainter.h"

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/QtText.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {

namespace {

constexpr double kTint = 0.45;      // opacity of the selection over a picture
constexpr double kFaint = 0.08;     // of the ground of a label
constexpr double kLabelMargin = 3;  // pixels
constexpr double kScreenDots = 96;  // per inch, where labels have their size
constexpr double kLeastLabel = 9;   // a lower or narrower box has no text

}  // namespace

void BoxPainter::Paint(const InlineBox& box, const QRectF& place, bool selected) {
  const double ratio = painter_.device()->devicePixelRatioF();
  const QRectF target = OnDevicePixels(painter_, place);
  const QtPicture picture = pictures_.Of(document_, box, target.size() * ratio);
  // Drawings are kept exactly on paper; photographs would become huge.
  painter_.setRenderHint(QPainter::LosslessImageRendering, !picture.photograph);
  if (picture.image.isNull())
    PaintLabel(box.item, target);
  else
    painter_.drawImage(target, picture.image);
  if (!selected) return;
  QColor tint = palette_.color(QPalette::Highlight);
  tint.setAlphaF(kTint);
  painter_.fillRect(target, tint);
}

void BoxPainter::PaintLabel(ItemId item, const QRectF& wanted) {
  QColor ink = palette_.color(QPalette::Text);
  const double scale = pictures_.forPaper ? painter_.device()->logicalDpiY() / kScreenDots : 1;
  const QRectF place({}, wanted.size() / scale);
  painter_.save();
  painter_.translate(wanted.topLeft());
  painter_.scale(scale, scale);
  ink.setAlphaF(kFaint);
  painter_.fillRect(place, ink);
  ink.setAlphaF(1 - kTint);
  DrawBorder(painter_, place, ink);
  painter_.setPen(ink);
  painter_.setFont(ControlFont());
  const QRectF inside = place.adjusted(kLabelMargin, 0, -kLabelMargin, 0);
  if (inside.width() >= kLeastLabel && inside.height() >= kLeastLabel) {
    const QString label = ToQString(LabelOf(document_.Formats().items[item]));
    const QFontMetricsF metrics(painter_.font());
    painter_.drawText(inside, Qt::AlignCenter,
                      metrics.elidedText(label, Qt::ElideRight, inside.width()));
  }
  painter_.restore();
}

}  // namespace lumenote
