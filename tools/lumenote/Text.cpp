// lumenote text: prints a note's plain text.
#include <algorithm>

#include "Command.h"
#include "NoteFile.h"
#include "base/CommandLine.h"
#include "base/Strings.h"

namespace lumenote::tool {

int Text(Arguments arguments) {
  const CommandLine line(arguments, {});
  if (line.Operands().size() != 1) throw CommandLineError("une note est attendue");
  const std::string& name = line.Operands()[0];
  std::string text = ToUtf8(ReplaceEvery(ReadNote(name).Text(), u"\r\n", u"\n"));
  std::replace(text.begin(), text.end(), '\v', '\n');
  if (!text.empty() && !text.ends_with('\n')) text += '\n';
  WriteBytes("-", text);
  return 0;
}

}  // namespace lumenote::tool
