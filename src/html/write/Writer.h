// Writes a document, or a range of it, as HTML.
#pragma once
#include <string>

#include "document/Document.h"

namespace lumenote {

/// A whole page in UTF-8, without style sheets or scripts.
std::string WriteHtml(const Document& document);
std::string WriteHtml(const Document& document, Position from, Position to);

}  // namespace lumenote
