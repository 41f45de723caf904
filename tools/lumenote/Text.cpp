// lumenote text: prints the plain text of notes.
#include <algorithm>

#include "Command.h"
#include "EachNote.h"
#include "NoteFile.h"
#include "NoteNames.h"
#include "base/CommandLine.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

std::string TextOf(const std::string& name) {
  std::string text = ToUtf8(ReplaceEvery(ReadNote(name).Text(), u"\r\n", u"\n"));
  std::replace(text.begin(), text.end(), '\v', '\n');
  if (!text.empty() && !text.ends_with('\n')) text += '\n';
  return text;
}

}  // namespace

int Text(Arguments arguments) {
  const CommandLine line(arguments, {});
  if (line.Operands().empty()) throw CommandLineError("une note est attendue");
  const NoteNames found = FindNotes(line.Operands(), [](Note::Format) { return true; });
  return ForEachNote(found.notes, [&](const NoteName& note) -> Finish {
    std::string text = TextOf(note.path);
    if (found.several) text = Titled(note.path, text);
    return [text = std::move(text)] { WriteBytes("-", text); };
  });
}

}  // namespace lumenote::tool
