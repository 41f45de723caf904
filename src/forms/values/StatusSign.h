// The icon at the end of a status bar: saved, or not yet.
#pragma once
#include <span>

#include "forms/values/Geometry.h"

namespace lumenote {

enum class StatusSign { None, Saved, Modified };

/// The line that draws the sign, in a square of `kSignSide` units; empty for none.
std::span<const Point> LineOf(StatusSign sign);
inline constexpr float kSignSide = 16;

}  // namespace lumenote
