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

/// Whether this is a folder, or a link to one.
bool IsFolder(const std::string& path);
/// The path of what is called `name` in a folder.
std::string PathIn(const std::string& folder, const std::string& name);

/// The operands, in their order, with each folder replaced by the files in it and in its folders
/// whose extension names a format that `takes` accepts, in the order of their names; links to
/// folders in it are not followed. A folder that cannot be read stands for itself: a note that
/// cannot be read.
NoteNames FindNotes(std::span<const std::string> operands,
                    const std::function<bool(Note::Format)>& takes);

}  // namespace lumenote::tool
