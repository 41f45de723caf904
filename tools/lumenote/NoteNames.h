// The notes that a command line names.
#pragma once
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "lumenote/Note.h"

namespace lumenote::tool {

struct NoteName {
  std::string path;
  std::string below;  // the path within the folder that was named; the file's own name without one
};

struct NoteNames {
  std::vector<NoteName> notes;
  bool several = false;  // a folder, or more than one file, was named
};

/// The operands, in their order, with each folder replaced by the files in it and in its folders
/// whose extension names a format that `takes` accepts, in the order of their names; links to
/// folders are not followed. Raises `Failure` for a folder that cannot be read.
NoteNames FindNotes(std::span<const std::string> operands,
                    const std::function<bool(Note::Format)>& takes);

}  // namespace lumenote::tool
