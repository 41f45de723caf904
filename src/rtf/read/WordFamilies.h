// What control words belong to that the editor shows nothing of.
#pragma once
#include <cstdint>
#include <string_view>

namespace lumenote {

/// What a word belongs to, and thus what makes it go.
enum class WordScope : std::uint8_t {
  None,       // means nothing, or nothing that outlasts the session that wrote it
  Character,  // until \plain
  Paragraph,  // until \pard
  Place,      // stays where it is: sections, table rows, automatic text
  Border,     // says more about the border that the word before it names
};

/// The scope of a word by the family that its name begins with.
WordScope FamilyScope(std::string_view word);
/// Whether the word names a border, so that others may say more about it.
bool NamesBorder(std::string_view word);
/// Whether a paragraph may say the word more than once: for each side of its border.
bool MayRepeat(std::string_view word);
/// Whether the word's number is that of a font, colour, style or list.
bool NamesTableEntry(std::string_view word);

}  // namespace lumenote
