// The ruler: a fixed line of tick marks and a bar of three zones.
#pragma once
#include <string>

namespace lumenote {

/// The ruler's RTF: 36 segments of a bar and seven hyphens, and a closing bar.
std::u16string RulerRtf();

enum class Zone { Left, Middle, Right };
/// The zone that `x` falls in: right beyond two thirds of `width`, middle from a third of
/// `middleWidth` on, both boundaries belonging to the middle.
Zone ZoneAt(float x, float width, float middleWidth);

}  // namespace lumenote
