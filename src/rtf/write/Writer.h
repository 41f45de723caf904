// Writing a document, or a piece of it, as RTF.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// Called with successive pieces of the output.
using ByteSink = std::function<void(std::string_view)>;

/// The whole document: reading it back gives the same text and formats, and writing that again the
/// same bytes. Pure ASCII, lines ended by CR LF.
void WriteRtf(const Document& document, const ByteSink& sink);
std::string WriteRtf(const Document& document);
/// The text between two positions; a \par for each break in it and none besides.
std::string WriteRtf(const Document& document, Position from, Position to);

}  // namespace lumenote
