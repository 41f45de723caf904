#include "backends/qt/text/CharStyles.h"

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/Units.h"
#include "view/layout/ShownText.h"

namespace lumenote {

namespace {

constexpr std::size_t kMaxStyles = 4096;
constexpr double kLeastPoints = 1;
constexpr int kMaxStretch = 4000;  // per cent

QFont MakeFont(const FontFace& face, const CharFormat& format, double points, double zoom) {
  QFont font(MachineFamily(face));
  font.setPointSizeF(std::max(points * zoom, kLeastPoints));
  font.setBold(format.effects & kBold);
  font.setItalic(format.effects & kItalic);
  if (format.scale != 100) font.setStretch(std::clamp<int>(format.scale, 1, kMaxStretch));
  if (format.spacing != 0) {
    const double least = -points / 2;  // keeps characters in order
    font.setLetterSpacing(QFont::AbsoluteSpacing, std::max(ToPixels(format.spacing), least) * zoom);
  }
  return QFont(font, CharStyles::Device());
}

void SetColours(CharStyle& style) {
  if (style.ground != kAutoColour) style.format.setBackground(FromBgr(style.ground));
  if (style.ink != kAutoColour) style.format.setForeground(FromBgr(style.ink));
}

}  // namespace

// Letters are as wide as their advance and the space behind them.
QTextCharFormat StandInFormat(const QTextCharFormat& text, char16_t shown, double width) {
  QFont font(text.font(), CharStyles::Device());
  font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
  const double own = QFontMetricsF(font).horizontalAdvance(QChar(shown));
  QTextCharFormat format;
  format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  format.setFontLetterSpacing(width - own);
  format.setForeground(QColor(Qt::transparent));
  return format;
}

QPaintDevice* CharStyles::Device() {
  static QImage device = [] {
    QImage image(1, 1, QImage::Format_RGB32);
    constexpr int kDotsPerMetre = 3780;  // 96 per inch
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    return image;
  }();
  return &device;
}

const CharStyle& CharStyles::Of(const Document& document, CharId id) {
  if (const auto found = styles_.find(id); found != styles_.end()) return found->second;
  if (styles_.size() >= kMaxStyles) styles_.clear();
  return styles_.emplace(id, Make(document, document.Formats().characters[id])).first->second;
}

const CharStyle& CharStyles::Of(const Document& document, const CharFormat& format) {
  if (!lastStyle_ || !(lastFormat_ == format)) lastStyle_ = Make(document, format);
  lastFormat_ = format;
  return *lastStyle_;
}

CharStyle CharStyles::Make(const Document& document, const CharFormat& format) const {
  CharStyle style{LookOf(document.Formats(), format, zoom_, ground_, IsInstalled), {}, {}};
  const FontFace& face = document.Formats().fonts[format.font];
  const QFont font = MakeFont(face, format, style.points, zoom_);
  const QFontMetricsF metrics(font);
  style.ascent = metrics.ascent();
  style.descent = metrics.descent();
  style.format.setFont(font);
  style.format.setBaselineOffset(100 * style.raise / (style.ascent + style.descent));
  SetColours(style);
  if (style.smallCapitals) {
    style.smallLetter = style.format;
    style.smallLetter->setFont(MakeFont(face, format, style.points * kSmallCapitalSize, zoom_),
                               QTextCharFormat::FontPropertiesSpecifiedOnly);
  }
  return style;
}

void CharStyles::Zoom(double factor) {
  zoom_ = factor;
  Forget();
}

void CharStyles::Ground(const QColor& colour) {
  ground_ = ToBgr(colour);
  Forget();
}

void CharStyles::Forget() {
  styles_.clear();
  lastStyle_.reset();
}

}  // namespace lumenote
