#include "backends/qt/text/CharStyles.h"

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <cmath>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {

constexpr std::size_t kMaxStyles = 4096;
constexpr double kLeastPoints = 1;
constexpr double kMaxPoints = 1638;
constexpr int kMaxStretch = 4000;  // per cent
constexpr double kScriptSize = 0.65;
constexpr double kSuperscriptRaise = 0.33;  // of the full size
constexpr double kSubscriptRaise = -0.14;
constexpr double kSmallCapitalSize = 0.8;
constexpr double kPlaceholderSize = 1.6;
constexpr double kLeastContrast = 2;

double Luminance(const QColor& colour) {
  const auto linear = [](double c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

/// The size of a character and its baseline shift, from superscript, subscript and offset.
struct Script {
  double points;
  double raise;  // pixels
};

Script ScriptSize(const CharFormat& format) {
  const double full = std::clamp(format.size / 2.0, kLeastPoints, kMaxPoints);
  const double pixels = full * 4 / 3;
  const double offset = ToPixels(format.offset);
  if (format.effects & kSuperscript)
    return {full * kScriptSize, offset + pixels * kSuperscriptRaise};
  if (format.effects & kSubscript) return {full * kScriptSize, offset + pixels * kSubscriptRaise};
  return {full, offset};
}

int StrikesOf(unsigned effects) {
  if (effects & kDoubleStrike) return 2;
  return effects & (kStrike | kDeleted) ? 1 : 0;
}

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

}  // namespace

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
  const Script script = ScriptSize(format);
  const FontFace& face = document.Formats().fonts[format.font];
  const bool embedded = document.Formats().kept[format.kept].kind == Kept::Kind::Embedded;
  const double points = script.points * (embedded ? kPlaceholderSize : 1);
  const QFont font = MakeFont(face, format, points, zoom_);
  const QFontMetricsF metrics(font);
  CharStyle style;
  style.ascent = metrics.ascent();
  style.descent = metrics.descent();
  style.raise = script.raise * zoom_;
  style.hidden = format.effects & kHidden;
  style.object = embedded;
  style.underline = format.underline;
  style.strikes = StrikesOf(format.effects);
  style.format.setFont(font);
  style.format.setBaselineOffset(100 * style.raise / (style.ascent + style.descent));
  SetColours(style, format);
  style.capitals = format.effects & (kAllCaps | kSmallCaps);
  if ((format.effects & (kAllCaps | kSmallCaps)) == kSmallCaps) {
    style.smallLetter = style.format;
    style.smallLetter->setFont(MakeFont(face, format, points * kSmallCapitalSize, zoom_),
                               QTextCharFormat::FontPropertiesSpecifiedOnly);
  }
  return style;
}

void CharStyles::Zoom(double factor) {
  zoom_ = factor;
  Forget();
}

void CharStyles::Ground(const QColor& colour) {
  ground_ = colour;
  Forget();
}

void CharStyles::Forget() {
  styles_.clear();
  lastStyle_.reset();
}

void CharStyles::SetColours(CharStyle& style, const CharFormat& format) const {
  const bool highlit = format.highlight != kAutoColour;
  const QColor ground = highlit ? FromBgr(format.highlight) : ground_;
  if (highlit) style.format.setBackground(ground);
  if (style.object)
    style.format.setForeground(QColor(Qt::transparent));
  else if (format.colour != kAutoColour)
    style.format.setForeground(highlit ? FromBgr(format.colour) : Readable(format.colour));
  else if (highlit)
    style.format.setForeground(InkOn(ground));
}

QColor CharStyles::Readable(Colour colour) const {
  const QColor wanted = FromBgr(colour);
  const bool darkGround = ground_.lightness() < 128;
  if (!darkGround || Contrast(wanted, ground_) >= kLeastContrast) return wanted;
  return QColor::fromHsl(wanted.hslHue(), wanted.hslSaturation(), 255 - wanted.lightness());
}

}  // namespace lumenote
