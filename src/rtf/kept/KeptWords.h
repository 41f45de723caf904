// The control words that are kept although the editor shows nothing of them.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "rtf/source/Tokenizer.h"

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

// How other scripts look in a run is told in parts, each a marker and the words that hold for it:
// for the directions (\rtlch, \ltrch), and behind these for the scripts (\loch, \hich, \dbch). The
// last one of each kind is the run's own.

bool IsMarker(std::string_view word);
/// Where the last part begins in `words` if it is that of \hich, else the end.
std::size_t HighPart(const std::string& words);
/// Makes the part of that marker the last of its kind.
std::string WithMarker(std::string words, std::string_view marker);
/// Adds a word to the part of that marker.
std::string WithAssociated(std::string words, std::string_view marker, const Token& word);

/// `words` without what numbers the paragraph.
std::string WithoutNumbering(std::string_view words);
/// Takes the word called `name` out of `words`, with its number.
void EraseWord(std::string_view name, std::string& words);
/// Whether kept source begins a page, column or section, and so a paragraph.
bool BeginsParagraph(std::string_view source);
/// The same, or whether it tells the format of a section.
bool BeginsPlace(std::string_view source);
/// The part of kept source that does so: all words but those of table rows, headers and footers;
/// no break when `there`, where it is to go, has one, and no format when that tells one.
std::string BeginningIn(std::string_view source, std::string_view there);
/// Whether kept source defines a section or table row.
bool DefinesPlace(std::string_view source);
/// The words of the last table row that kept source defines; empty when it defines none.
std::string RowDefinition(std::string_view source);
/// Whether the word's number is that of a font, colour, style or list.
bool NamesTableEntry(std::string_view word);

}  // namespace lumenote
