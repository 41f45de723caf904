// Notes in native files and standard streams.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "lumenote/Note.h"

namespace lumenote::tool {

/// The format of a file name's extension, in any letter case; empty for an unknown one.
std::optional<Note::Format> FormatOfName(std::string_view name);

/// Reads the note in the format of its extension or, for an unknown one, the detected format.
/// Raises `Failure` for a file named .rtf whose content is not RTF, and for a binary file whose
/// extension does not say that it is a note.
Note ReadNote(const std::string& name);
/// The same for a file whose content is known.
Note NoteOf(const std::string& name, const std::string& bytes);

/// `name` is a native path, or "-" for a standard stream. Both raise `Failure`.
std::string ReadBytes(const std::string& name);
/// Replaces a file atomically.
void WriteBytes(const std::string& name, std::string_view bytes);

}  // namespace lumenote::tool
