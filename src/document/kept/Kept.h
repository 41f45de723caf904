// What a note's RTF source says beyond what the editor shows: beside characters, around them, and
// around the whole note. The reader makes these items, the writer prints them.
#pragma once
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "document/formats/Formats.h"

namespace lumenote {

/// A stretch of source of one kind, one item of a chain: pure ASCII with paired braces, no blank
/// behind a word at its end.
struct KeptItem {
  enum class Kind : std::uint8_t {
    Group,  // any that is none of those below
    PageBreak,
    ColumnBreak,
    SectionBreak,
    Section,     // \sectd and the words behind it
    Row,         // \trowd and the words behind it: the definition of a table row
    Words,       // other words, or more of the section or row before them
    PageHeader,  // a header or footer of the section
    Bookmark,
    Field,  // one without a result
    Picture,
    Object,
    Drawing,
    Note,  // a footnote
  };
  Kind kind = Kind::Group;
  ItemId next = 0;
  std::string source{};
  bool operator==(const KeptItem&) const = default;
};
using KeptItems = std::vector<KeptItem>;  // in order, not yet chained

/// Whether it ends a page, column or section.
inline bool IsBreak(const KeptItem& item) {
  return item.kind >= KeptItem::Kind::PageBreak && item.kind <= KeptItem::Kind::SectionBreak;
}

/// What the source says at one character. It goes where the character goes.
struct Kept {
  enum class Kind : std::uint8_t {
    Character,  // stands for itself
    Break,      // the paragraph break that ends a page, column or section
    Embedded,   // U+FFFC, which stands for an item
    Cell,       // the tab behind a table cell
    Row,        // the break behind a table row, and so behind its last cell
  };
  ItemId before = 0;         // in front of the character
  ItemId self = 0;           // of Break and Embedded: the item; of Row: what leads to its end
  FieldId field = 0;         // the innermost field that the character is in, 0 none
  ParaId paragraph = 0;      // of Cell: its format; the last one of a row has the paragraph's
  std::uint32_t serial = 0;  // tells characters apart that the same comes before
  Kind kind = Kind::Character;
  std::uint8_t nested = 0;  // of Cell and Row: 1 in a table inside a table
  std::uint8_t reserved[2] = {};
  bool operator==(const Kept&) const = default;
};
static_assert(std::has_unique_object_representations_v<Kept>);

/// A group around characters.
struct KeptField {
  enum class Kind : std::uint8_t {
    Result,      // of a field
    ListNumber,  // the visible number of a list paragraph
  };
  std::string opening{};     // the source up to the characters
  FieldId outer = 0;         // the field around it, 0 none
  std::uint32_t serial = 0;  // tells fields apart that follow each other and say the same
  Kind kind = Kind::Result;
  bool operator==(const KeptField&) const = default;
};

/// What a source says ahead of its text and behind it. What is kept names fonts and colours by
/// numbers, so their tables stay as they were, and what the note uses besides comes behind.
struct KeptHead {
  struct Font {
    int number = 0;
    FontId font = 0;
    int page = 0;  // of its bytes; 0: the document's
    bool operator==(const Font&) const = default;
  };
  ItemId items = 0;               // the tables of fonts and colours excepted
  ItemId tail = 0;                // behind the text
  bool tables = false;            // something kept names entries of the tables: they are kept too
  std::string fontTable{};        // what stands in its group
  std::vector<Font> fonts{};      // by rising number
  std::vector<Colour> colours{};  // by their numbers
  int page = 1252;                // of bytes under no font of another one
  int defaultFont = 0;
  bool operator==(const KeptHead&) const = default;
};

std::uint64_t HashOf(const KeptItem& item);
std::uint64_t HashOf(const KeptField& field);
std::uint64_t HashOf(const KeptHead& head);

}  // namespace lumenote
