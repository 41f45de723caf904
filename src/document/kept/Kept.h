// Kept content: what a note's RTF source says beside text and formats, at characters, around them,
// and for the whole note. The reader creates these items, the writer prints them, and some, such as
// pictures, notes and rows, are shown.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "document/formats/Formats.h"

namespace lumenote {

/// A piece of source of one kind, as a chain node: pure ASCII, with balanced braces but for the
/// data of \bin, and without a space after a final control word.
struct KeptItem {
  enum class Kind : std::uint8_t {
    Group,  // any other group
    PageBreak,
    ColumnBreak,
    SectionBreak,
    Section,     // \sectd and the words after it
    Row,         // \trowd and the words after it: the definition of a table row
    Words,       // other words, or more words of the preceding section or row
    PageHeader,  // a header or footer of the section
    Bookmark,
    Field,  // without a result
    Picture,
    Object,
    Drawing,
    Note,  // a footnote
  };
  Kind kind = Kind::Group;
  ItemId next = 0;
  std::string source{};
  std::vector<std::int32_t> cells{};  // right edges that a row states, twips from the text's left
  bool operator==(const KeptItem&) const = default;
};
using KeptItems = std::vector<KeptItem>;  // in order, not chained yet

/// Whether the item ends a page, column or section.
inline bool IsBreak(const KeptItem& item) {
  return item.kind >= KeptItem::Kind::PageBreak && item.kind <= KeptItem::Kind::SectionBreak;
}

/// Stands in the text for an embedded item.
inline constexpr char16_t kObjectCharacter = u'\uFFFC';

/// What the source says at one character; it moves with the character.
struct Kept {
  enum class Kind : std::uint8_t {
    Character,  // an ordinary character
    Break,      // the paragraph break that ends a page, column or section
    Embedded,   // `kObjectCharacter`
    Cell,       // the tab after a table cell
    Row,        // the break after a table row, which also ends its last cell
  };
  ItemId before = 0;         // preceding the character
  ItemId self = 0;           // of Break and Embedded: the item; of Row: what precedes its end
  FieldId field = 0;         // innermost enclosing field, 0 none
  ParaId paragraph = 0;      // of Cell: its format; a row's last cell has that of the paragraph
  std::uint32_t serial = 0;  // distinguishes characters preceded by equal items
  Kind kind = Kind::Character;
  std::uint8_t nested = 0;  // of Cell and Row: 1 in a nested table
  std::uint8_t reserved[2] = {};
  bool operator==(const Kept&) const = default;
};
static_assert(std::has_unique_object_representations_v<Kept>);

/// A group around a range of characters.
struct KeptField {
  enum class Kind : std::uint8_t {
    Result,      // of a field
    ListNumber,  // the visible number or bullet of a list paragraph
  };
  std::string opening{};     // the source before the characters
  FieldId outer = 0;         // the enclosing field, 0 none
  std::uint32_t serial = 0;  // distinguishes adjacent fields with equal source
  Kind kind = Kind::Result;
  bool operator==(const KeptField&) const = default;
};

/// The source's head and tail. Fonts keep their numbers, since readers differ in which one text
/// has that states none. If kept content names fonts and colours by number, both tables keep all
/// their entries, and a font's entry says more than `Font`, hence `fontTable`.
struct KeptHead {
  struct Font {
    int number = 0;
    FontId font = 0;
    int page = 0;        // code page of its bytes; 0: that of its charset, else the document's
    bool added = false;  // not in `fontTable`, although the tables are kept
    bool operator==(const Font&) const = default;
  };
  ItemId items = 0;                  // without the font and colour tables
  ItemId tail = 0;                   // after the text
  bool generator = false;            // it names the program that wrote it
  bool tables = false;               // some kept content refers to the tables, so they are kept
  std::string fontTable{};           // the content of its group, printed as it came if not empty
  std::vector<Font> fonts{};         // by ascending number
  std::vector<Colour> colours{};     // by number
  std::vector<std::string> tints{};  // likewise: words before the colour
  int page = 1252;                   // code page of bytes in fonts without their own
  int defaultFont = -1;              // one of `fonts`; -1: none
  bool operator==(const KeptHead&) const = default;
};

/// The words before a colour of the table.
const std::string& TintOf(const KeptHead& head, std::size_t colour);

std::uint64_t HashOf(const KeptItem& item);
std::uint64_t HashOf(const KeptField& field);
std::uint64_t HashOf(const KeptHead& head);

}  // namespace lumenote
