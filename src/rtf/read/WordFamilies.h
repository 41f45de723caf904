// Classifies the control words that the editor does not show.
#pragma once
#include <cstdint>
#include <string_view>

namespace lumenote {

/// What a word belongs to, and hence what cancels it.
enum class WordScope : std::uint8_t {
  None,       // meaningless, or only within the session that wrote it
  Character,  // until \plain
  Paragraph,  // until \pard
  Anchored,   // stays in place: sections, table rows, automatic text
  Border,     // details of the border named before it
};

/// The scope of a word's family, given by a prefix of its name.
WordScope FamilyScope(std::string_view word);
/// Whether the word names a border, so that details may follow.
bool NamesBorder(std::string_view word);
/// Whether a paragraph may repeat the word, once per side of its border.
bool MayRepeat(std::string_view word);

}  // namespace lumenote
