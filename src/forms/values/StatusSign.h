// The icon at the end of a status bar: saved, or not yet.
#pragma once
#include <span>

#include "forms/values/Geometry.h"

namespace lumenote {

enum class StatusSign { None, Saved, Modified };

/// The line that draws the sign, in a square of `kSignSide` units; empty for none.
std::span<const Point> StrokeOf(StatusSign sign);
inline constexpr float kSignSide = 16;
/// How thick the line is, in those units.
inline constexpr double kSignStroke = 1.5;
/// How much of the ground (0 to 1) is in the colour of the line: what is saved needs no attention.
constexpr float PalenessOf(StatusSign sign) { return sign == StatusSign::Saved ? 0.4F : 0; }

}  // namespace lumenote
