// Arithmetic of the paragraph dialog: millimetres, steps, line spacing.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Twips to millimetres, rounded down to hundredths: 165 gives 2.91.
float CTwTosiMm2d(double twips);
/// The same as text, with a decimal comma.
std::u16string MillimetresText(double twips);
/// Whole millimetres, rounded down, as shown for the right margin.
std::u16string WholeMillimetresText(double twips);

/// Snaps a length up to the next multiple of `step`, up to 251 steps. A longer one, or one more
/// than half a step below zero, is unchanged.
std::int32_t CorrValIndent(std::int32_t value, std::int32_t step);

/// A line-spacing code as a number of lines, at most four characters: 25 gives "1,25".
std::u16string LineSpacingText(std::int32_t code);
/// The code of a typed number of lines; 1 if beyond 99. Empty for a text that is not a number.
std::optional<std::int32_t> LineSpacingCode(std::u16string_view text);

/// Digits, at most one comma and, if allowed, minus signs anywhere; not empty.
bool IsNumericText(std::u16string_view text, bool minusAllowed);
/// Normalises the entry of a number box: trims spaces, turns points into commas, and replaces a
/// text that is not a number by "0". An empty text stays empty.
std::u16string NormalisedNumber(std::u16string_view text);

}  // namespace lumenote
