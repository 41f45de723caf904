// Reads RTF into a fragment of a document.
#pragma once
#include <string_view>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"

namespace lumenote {

/// Whether the bytes begin as RTF: "{\rtf" or "{\urtf" in any letter case. A UTF-8 byte order mark,
/// spaces and NUL bytes may precede it, and spaces may follow the brace.
bool LooksLikeRtf(std::string_view bytes);

/// What the text is read for.
enum class RtfTarget {
  Document,   // the closing \par is the final mark, part of the fragment
  Selection,  // every \par is a break; goes into another note
};

/// Accepts any bytes: damaged or truncated RTF yields the text that is there; hostile RTF takes
/// bounded time and memory. Interns formats in `formats`. Throws only if an allocation fails.
/// `base` shows what the source does not state; its font, where the source names no default one.
/// A selection takes the numbers of the note that `note` ends, and has a mark only if that note
/// needs another head.
Fragment ReadRtf(std::string_view bytes, FormatTables& formats, RtfTarget target,
                 CharFormat base = {.size = 24}, FinalMark note = {});

/// The same for a whole note.
struct RtfNote {
  Fragment content;
  FontId plainFont = 0;  // of text that names none: that of \deff, else the base's
};
RtfNote ReadRtfNote(std::string_view bytes, FormatTables& formats, CharFormat base);

}  // namespace lumenote
