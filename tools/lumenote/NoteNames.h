// The notes that a command line names.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "lumenote/Note.h"

namespace lumenote::tool {

/// The operands, in their order, with each folder replaced by the files in it and in its folders
/// whose extension names a format that `takes` accepts, in the order of their names; links to
/// folders are not followed. Raises `Failure` for a folder that cannot be read.
std::vector<std::string> NoteNames(const std::vector<std::string>& operands,
                                   const std::function<bool(Note::Format)>& takes);

}  // namespace lumenote::tool
