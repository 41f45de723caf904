// Notes in native files and standard streams.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "lumenote/Note.h"

namespace lumenote::tool {

/// What a file name's extension says, in any letter case; nothing for another one.
std::optional<Note::Format> FormatOfName(std::string_view name);

/// The note that stands at `name`, in the format that its extension says, else in the one that it
/// looks like. Raises `Failure` when it ends in .rtf and its content is not RTF.
Note ReadNote(const std::string& name);

/// Absolute, so that the folder above it can be looked at when it is missing.
std::string Absolute(const std::string& name);

/// `name` is a native path, or "-" for a standard stream. Raise `Failure`.
std::string ReadBytes(const std::string& name);
/// A file is replaced at once or not at all.
void WriteBytes(const std::string& name, std::string_view bytes);

}  // namespace lumenote::tool
