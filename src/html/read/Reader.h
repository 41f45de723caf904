// Reads HTML into a fragment of a document.
#pragma once
#include <string_view>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"

namespace lumenote {

/// What the text is read for.
enum class HtmlTarget {
  Document,   // with a final mark
  Selection,  // without the last paragraph's break, but for a list's item after other paragraphs
};

/// Accepts any text: what is no HTML is text, unknown elements are read through. Takes time and
/// memory proportional to the source. Interns formats in `formats`. Throws only if an allocation
/// fails. `base` is the format of text about which the source says nothing; its font and size stay
/// unstated.
Fragment ReadHtml(std::u16string_view html, FormatTables& formats, HtmlTarget target,
                  const CharFormat& base);

}  // namespace lumenote
