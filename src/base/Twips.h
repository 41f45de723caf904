// Twips, in which documents and windows measure.
#pragma once

namespace lumenote {

inline constexpr double kTwipsPerInch = 1440;
inline constexpr double kTwipsPerPoint = 20;
inline constexpr int kTwipsPerHalfPoint = 10;
/// Of pixels at 96 to the inch.
inline constexpr double kTwipsPerPixel = 15;

}  // namespace lumenote
