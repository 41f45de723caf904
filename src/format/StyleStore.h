// Paragraph styles: the current record, the four names, and their storage.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/RichTextSurface.h"
#include "platform/Settings.h"

namespace lumenote {

/// One style; lengths in twips. A line spacing up to 100 is in twentieths of a line, above that an
/// exact spacing in twips. The font size is stored as text, in points.
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

/// The current style and the right margin that goes with it: one for the process, never reset.
extern StyleRecord CurrentStyle;
extern std::int32_t StyleRightMargin;

/// Index 0 is the Standard style.
inline constexpr std::array<std::u16string_view, 4> StyleNames = {u"Standard", u"Para 1", u"Para 2",
                                                                  u"Para 3"};
/// Never written, so loading it gives the defaults: the Standard style.
inline constexpr std::u16string_view kStandardSection = u"xyzxyz";

/// Writes the record and `StyleRightMargin` to the section "MicroEdtSty" plus the digit.
void SaveStyle(Settings& settings, std::u16string_view application, std::u16string_view digit,
               const StyleRecord& style);
/// Fills the record and `StyleRightMargin` from the section; an application given as a path is
/// reduced to its base name. Loading stops at the first value that is not a number.
void LoadStyle(const Settings& settings, std::u16string_view application,
               std::u16string_view section, StyleRecord& style);
/// Applies the record to the selection, and the right margin to the surface. Attributes that fail
/// are skipped.
void ApplyStyleRecord(RichTextSurface& surface, StyleRecord& style);

}  // namespace lumenote
