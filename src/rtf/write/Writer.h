// Writes a document, or a range of it, as RTF.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// Called with successive chunks of the output.
using ByteSink = std::function<void(std::string_view)>;

/// Writes the whole document as pure ASCII with CR LF line ends. Reading it back gives
/// the same text and formats, and writing that again gives the same bytes.
void WriteRtf(const Document& document, const ByteSink& sink);
std::string WriteRtf(const Document& document);
/// Writes a range, with a \par for each break in it and no other.
std::string WriteRtf(const Document& document, Position from, Position to);

}  // namespace lumenote
