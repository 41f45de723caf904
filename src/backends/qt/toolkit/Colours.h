// Colours of the forms and notes as the toolkit has them.
#pragma once
#include <QColor>
#include <cstdint>

namespace lumenote {

/// Of 0xBBGGRR.
inline QColor FromBgr(std::uint32_t colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

/// Black or white, whichever stands out more.
inline QColor InkOn(const QColor& ground) {
  return qGray(ground.rgb()) >= 128 ? QColor(Qt::black) : QColor(Qt::white);
}

/// The first colour with a share (0 to 1) of the other.
inline QColor Mixed(const QColor& one, const QColor& other, float share) {
  const auto mix = [&](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

}  // namespace lumenote
