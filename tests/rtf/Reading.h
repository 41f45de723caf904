// Documents out of RTF and what is lost on the way back.
#pragma once
#include <string>
#include <string_view>

#include "document/Document.h"
#include "rtf/read/Reader.h"

namespace lumenote {

Document Read(std::string_view rtf, RtfTarget target = RtfTarget::Document,
              CharFormat base = {.size = 24});

/// The text in UTF-8, "\n" for a break.
std::string TextOf(const Document& document);

/// What writing the document and reading it again does not keep; empty when text and bytes stay,
/// in steps too, and the bytes are printable ASCII in lines.
std::string LossOf(const Document& document);

}  // namespace lumenote
