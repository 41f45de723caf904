// Reading RTF into a fragment of a document.
#pragma once
#include <string_view>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"

namespace lumenote {

/// Whether the bytes begin as RTF does: "{\rtf" or "{\urtf", whatever the letter case. A UTF-8 byte
/// order mark, blanks and NUL bytes may stand before it, blanks behind the brace.
bool LooksLikeRtf(std::string_view bytes);

/// What the text is read for.
enum class RtfTarget {
  Document,   // the closing \par is the final mark, which the fragment carries
  Selection,  // every \par is a break; no final mark
};

/// Reads any bytes; damaged or truncated RTF gives the text that is there, hostile RTF costs
/// bounded time and memory. Formats are interned in `formats`. Never throws but for want of memory.
/// `base` is the format of text before the source says otherwise when it names no default font;
/// RTF's own is 12 points.
Fragment ReadRtf(std::string_view bytes, FormatTables& formats, RtfTarget target,
                 CharFormat base = {.size = 24});

/// The same for a whole note.
struct RtfNote {
  Fragment content;
  FontId plainFont = 0;  // of text that names none: that of \deff, else the base's
};
RtfNote ReadRtfNote(std::string_view bytes, FormatTables& formats, CharFormat base);

}  // namespace lumenote
