// Converts between twips and logical pixels.
#pragma once
#include <QRect>
#include <QSize>

#include "base/Twips.h"
#include "forms/values/Geometry.h"

namespace lumenote {

constexpr double ToPixels(double twips) { return twips / kTwipsPerPixel; }
constexpr float ToTwips(double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); }
/// Rounds to the nearest pixel; clamps lengths beyond any screen.
int RoundToPixel(double twips);
/// Rounds each edge by itself, so that neighbours neither gap nor overlap.
QRect ToPixels(const Rect& twips);

/// The part of a window's outer size that is not client area: 8 pixels of borders, and 27 of
/// borders and caption.
inline constexpr QSize kDecorations{8, 27};
/// Height of the menu bar, and maximum height of the status bar.
inline constexpr int kBarHeight = 20;

}  // namespace lumenote
