// Formats as tags and style sheets.
#pragma once
#include <string>

#include "document/FormatTables.h"

namespace lumenote {

/// Tags around text, and their ends in reverse.
struct HtmlTags {
  std::string open, close;
  bool operator==(const HtmlTags&) const = default;
};

/// What gives text its format. `around` is the format of the paragraph's element, which states font
/// and size, if its format does; a link's text is blue and underlined unless told otherwise.
HtmlTags TagsOf(const CharFormat& format, const CharFormat& around, bool inLink,
                const FormatTables& tables);

/// The declarations of a paragraph's element: of its format, and font and size of its text.
std::string ParagraphStyle(const ParaFormat& format, const CharFormat& text,
                           const FormatTables& tables);
/// The same for an item, whose list states its indents.
std::string ItemStyle(const ParaFormat& format, const CharFormat& text, const FormatTables& tables);

/// Declares a length: "margin-left:12.5pt;".
void DeclareLength(std::string_view property, std::int32_t twips, std::string& style);

}  // namespace lumenote
