// The paragraph styles: one record in use, four names, the store behind them.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/RichTextSurface.h"
#include "platform/Settings.h"

namespace lumenote {

/// One style; lengths in twips. A line spacing up to 100 counts twentieths of a line, above it is
/// an exact spacing in twips. The font size is kept as text, in points.
struct StyleRecord {
  std::int32_t RightIndent = 0;
  std::int32_t LeftIndent = 0;
  std::int32_t HangingIndent = 0;  // relative to the left indent
  std::int32_t LeftFront = 0;      // derived: the sum of the two
  std::int32_t SpaceBefore = 0;
  std::int32_t SpaceAfter = 0;
  std::int32_t LineSpacing = 0;
  std::int32_t Alignment = 0;
  std::u16string FontName;
  std::u16string FontSize;
};

/// The style in use and the right margin that travels with it: one for the process, never reset.
extern StyleRecord CurrentStyle;
extern std::int32_t StyleRightMargin;

/// Index 0 is the Standard style.
inline constexpr std::array<std::u16string_view, 4> StyleNames = {u"Standard", u"Para 1", u"Para 2",
                                                                  u"Para 3"};
/// A section that is never written: loading it gives the defaults, which are the Standard style.
inline constexpr std::u16string_view kStandardSection = u"xyzxyz";

/// Writes the record and `StyleRightMargin` under "MicroEdtSty" and the digit.
void SaveStyle(Settings& settings, std::u16string_view application, std::u16string_view digit,
               const StyleRecord& style);
/// Fills the record and `StyleRightMargin` from a section of that name; an application given as a
/// path counts by its base name. The first value that is no number ends the loading.
void LoadStyle(const Settings& settings, std::u16string_view application,
               std::u16string_view section, StyleRecord& style);
/// Gives the selection the format of the record, and the surface its right margin. A value that
/// cannot be is passed over.
void ApplyStyleRecord(RichTextSurface& surface, StyleRecord& style);

}  // namespace lumenote
