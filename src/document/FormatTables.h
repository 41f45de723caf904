// The tables that give each distinct format, and what is kept beside formats, a small number.
#pragma once
#include <cstdint>
#include <string>

#include "document/formats/Formats.h"
#include "document/formats/InternTable.h"
#include "document/kept/ChainTable.h"
#include "document/kept/Kept.h"
#include "document/kept/KeptWord.h"

namespace lumenote {

/// The tables of one document. Number 0 of each is the default; numbers are never reused, so a
/// fragment or an undo step may keep them as long as the document lives.
struct FormatTables {
  FormatTables();
  /// A serial for what is kept. They come round again, so that hostile sources do not fill the
  /// tables with the same again and again; by then what has the same serial is far away.
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

}  // namespace lumenote
