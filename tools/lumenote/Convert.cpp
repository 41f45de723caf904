// lumenote convert: converts a note between RTF, plain text and HTML.
#include "Command.h"
#include "NoteFile.h"
#include "base/CommandLine.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--to", true}};

/// The format given by --to, else by the file name; empty if neither tells.
std::optional<Note::Format> AskedFormat(const CommandLine& line) {
  const std::string& target = line.Operands()[1];
  if (const auto to = line.Value("--to")) {
    if (*to == "rtf") return Note::Format::Rtf;
    if (*to == "txt") return Note::Format::Text;
    if (*to == "html") return Note::Format::Html;
    throw CommandLineError("--to attend rtf, txt ou html");
  }
  const std::optional<Note::Format> named = FormatOfName(target);
  if (!named && target != "-")
    throw CommandLineError(target + " : extension .rtf, .txt ou .html attendue, ou --to");
  return named;
}

Note::Format OtherThan(Note::Format format) {
  return format == Note::Format::Rtf ? Note::Format::Text : Note::Format::Rtf;
}

}  // namespace

int Convert(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  if (line.Operands().size() != 2) throw CommandLineError("deux fichiers sont attendus");
  const std::optional<Note::Format> asked = AskedFormat(line);
  const std::string& source = line.Operands()[0];
  const Note note = ReadNote(source);
  const Note::Format format = asked.value_or(OtherThan(note.Source()));
  WriteBytes(line.Operands()[1], note.Bytes(format));
  return 0;
}

}  // namespace lumenote::tool
