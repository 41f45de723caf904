// Colours of forms and notes as Qt colours.
#pragma once
#include <QColor>
#include <cstdint>

namespace lumenote {

/// Converts 0xBBGGRR.
inline QColor FromBgr(std::uint32_t colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

inline std::uint32_t ToBgr(const QColor& colour) {
  return static_cast<std::uint32_t>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

/// Black or white, whichever contrasts more.
inline QColor InkOn(const QColor& ground) {
  return qGray(ground.rgb()) >= 128 ? QColor(Qt::black) : QColor(Qt::white);
}

/// Blends `share` (0 to 1) of the other colour into the first.
inline QColor Mixed(const QColor& one, const QColor& other, float share) {
  const auto mix = [&](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

}  // namespace lumenote
