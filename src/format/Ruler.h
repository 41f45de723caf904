// The ruler: a fixed line of tick marks and a click bar of three zones.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// The ruler as RTF: 36 segments of a bar and seven hyphens, then a closing bar.
std::u16string RulerRtf();

enum class Zone { Left, Middle, Right };
/// The zone of `x`: right beyond two thirds of `width`, middle from a third of `middleWidth` on.
/// Both boundaries belong to the middle.
Zone ZoneAt(float x, float width, float middleWidth);
/// What a click on the zone shows or hides.
std::u16string_view NameOf(Zone zone);

}  // namespace lumenote
