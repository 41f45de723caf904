// Twips of the forms and logical pixels of the desktop.
#pragma once
#include <QRect>
#include <QSize>

#include "forms/values/Geometry.h"

namespace lumenote {

inline constexpr double kTwipsPerPixel = 15;

constexpr double ToPixels(double twips) { return twips / kTwipsPerPixel; }
constexpr float ToTwips(double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); }
/// The nearest whole pixel; lengths no screen has are cut off.
int RoundToPixel(double twips);
/// Each edge goes to its nearest pixel, so that neighbours neither gap nor overlap.
QRect ToPixels(const Rect& twips);

/// What a window's outer size holds besides its client area: 8 pixels of borders, 27 of borders
/// and caption.
inline constexpr QSize kDecorations{8, 27};
/// Heights of the menu bar and, at most, of the status bar.
inline constexpr int kBarHeight = 20;

}  // namespace lumenote
