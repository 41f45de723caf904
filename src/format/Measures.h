// The arithmetic of the paragraph dialog: millimetres, steps, line spacing.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Twips as millimetres, cut down to hundredths towards minus infinity: 165 gives 2.91.
float CTwTosiMm2d(double twips);
/// The same as shown, with a decimal comma.
std::u16string MillimetresText(double twips);
/// The whole millimetres, cut down, as shown for the right margin.
std::u16string WholeMillimetresText(double twips);

/// Snaps a length to the grid of `step`: to the next multiple up to 251 steps; a longer one, or one
/// more than half a step below zero, stays as it is.
std::int32_t CorrValIndent(std::int32_t value, std::int32_t step);

/// A line-spacing code as a number of lines of at most four characters: 25 gives "1,25".
std::u16string LineSpacingText(std::int32_t code);
/// The code that a typed number of lines means; beyond 99 it is 1. Empty for a text that is no
/// number.
std::optional<std::int32_t> LineSpacingCode(std::u16string_view text);

/// Digits, at most one comma and, when allowed, minus signs anywhere; not empty.
bool IsNumericText(std::u16string_view text, bool minusAllowed);
/// What a number box holds after an entry: trimmed, points as commas, "0" for what is no number,
/// empty for nothing.
std::u16string NormalisedNumber(std::u16string_view text);

}  // namespace lumenote
