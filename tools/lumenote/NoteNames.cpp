// Finds notes in folders.
#include "NoteNames.h"

#include <algorithm>

#include "Command.h"
#include "NoteFile.h"
#include "backends/native/files/Disk.h"

namespace lumenote::tool {
namespace {

using Takes = std::function<bool(Note::Format)>;

std::string LastPartOf(const std::string& path) {
  const std::string absolute = AbsolutePath(path);
  return absolute.substr(absolute.rfind('/') + 1);
}

/// `below` is the folder's path within the one that was named, with a separator behind it.
void AddNotesOf(const std::string& folder, const std::string& below, const Takes& takes,
                std::vector<NoteName>& notes) {
  std::optional<std::vector<std::string>> names = AllNamesIn(AbsolutePath(folder));
  if (!names) return notes.push_back({folder, below});
  std::ranges::sort(*names);
  for (const std::string& name : *names) {
    const std::string path = PathIn(folder, name);
    if (IsRealFolder(AbsolutePath(path))) {
      AddNotesOf(path, below + name + '/', takes, notes);
      continue;
    }
    const std::optional<Note::Format> format = FormatOfName(name);
    if (format && takes(*format)) notes.push_back({path, below + name});
  }
}

}  // namespace

bool IsFolder(const std::string& path) { return IsRealFolder(FollowLinks(AbsolutePath(path))); }

std::string PathIn(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

NoteNames FindNotes(std::span<const std::string> operands, const Takes& takes) {
  NoteNames found{{}, operands.size() > 1};
  for (const std::string& operand : operands) {
    if (operand != "-" && IsFolder(operand)) {
      found.several = true;
      AddNotesOf(operand, "", takes, found.notes);
    } else {
      found.notes.push_back({operand, LastPartOf(operand)});
    }
  }
  return found;
}

}  // namespace lumenote::tool
