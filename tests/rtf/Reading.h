// Documents out of RTF, and documents as one line of text that shows their formats.
#pragma once
#include <ostream>
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

/// What differs from the standard format, in pointed brackets before each run; "|" for a break,
/// followed by the format of the paragraph it ends, and the same at the end for the final mark.
std::string Shown(const Document& document);

/// A case of a table: what is read and what comes out.
struct Case {
  const char* rtf;
  const char* expected;
};
inline std::ostream& operator<<(std::ostream& out, const Case& c) { return out << c.rtf; }

}  // namespace lumenote
