// Finds notes in folders.
#include "NoteNames.h"

#include <algorithm>

#include "Command.h"
#include "NoteFile.h"
#include "backends/native/files/Disk.h"

namespace lumenote::tool {
namespace {

using Takes = std::function<bool(Note::Format)>;

void AddNotesOf(const std::string& folder, const Takes& takes, std::vector<std::string>& notes) {
  std::optional<std::vector<std::string>> names = AllNamesIn(AbsolutePath(folder));
  if (!names) throw Failure(folder + " : lecture impossible");
  std::ranges::sort(*names);
  for (const std::string& name : *names) {
    const std::string path = folder.ends_with('/') ? folder + name : folder + '/' + name;
    if (IsRealFolder(AbsolutePath(path))) {
      AddNotesOf(path, takes, notes);
      continue;
    }
    const std::optional<Note::Format> format = FormatOfName(name);
    if (format && takes(*format)) notes.push_back(path);
  }
}

}  // namespace

std::vector<std::string> NoteNames(const std::vector<std::string>& operands, const Takes& takes) {
  std::vector<std::string> notes;
  for (const std::string& operand : operands) {
    if (operand != "-" && IsRealFolder(AbsolutePath(operand)))
      AddNotesOf(operand, takes, notes);
    else
      notes.push_back(operand);
  }
  return notes;
}

}  // namespace lumenote::tool
