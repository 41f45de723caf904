// Tables that map each distinct format, and each piece of kept content, to a small number.
#pragma once
#include <cstdint>
#include <string>

#include "document/formats/Formats.h"
#include "document/formats/InternTable.h"
#include "document/kept/ChainTable.h"
#include "document/kept/Kept.h"
#include "document/kept/KeptWord.h"

namespace lumenote {

/// The tables of one document. Number 0 of each is the default. Numbers are never reused, so
/// fragments and undo steps may hold them as long as the document lives.
struct FormatTables {
  FormatTables();
  /// A serial number for kept content. Serials wrap around, so that hostile sources cannot fill the
  /// tables with copies of one item; equal serials then are far apart in the text.
  std::uint32_t NextSerial() { return serials++ % 16384; }

  InternTable<FontFace> fonts;
  InternTable<CharFormat> characters;
  InternTable<ParaFormat> paragraphs;
  InternTable<TabStops> tabs;
  ChainTable<KeptItem> items;
  InternTable<Kept> kept;
  InternTable<KeptField> fields;
  ChainTable<KeptWord> words;
  InternTable<std::string> names;  // of kept words
  InternTable<KeptHead> heads;
  std::uint32_t serials = 0;
};

/// The item that text of the format stands for; 0 for other text.
ItemId EmbeddedItem(const FormatTables& tables, const CharFormat& format);

}  // namespace lumenote
