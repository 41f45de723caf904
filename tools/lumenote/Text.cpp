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
  const auto names = NoteNames(line.Operands(), [](Note::Format) { return true; });
  const bool alone = names == line.Operands() && names.size() == 1;
  return ForEachNote(names, [&](const std::string& name) {
    const std::string text = TextOf(name);
    WriteBytes("-", alone ? text : Titled(name, text));
  });
}

}  // namespace lumenote::tool
