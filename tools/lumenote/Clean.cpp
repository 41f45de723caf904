// lumenote clean: cleans up recognised text in many notes.
#include <iostream>

#include "Command.h"
#include "ListFile.h"
#include "NoteFile.h"
#include "Progress.h"
#include "base/CommandLine.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--list", true}, {"-o", true}, {"--dry-run"}};

void Check(const CommandLine& line) {
  const std::vector<std::string>& notes = line.Operands();
  if (notes.empty()) throw CommandLineError("une note est attendue");
  if (!line.Has("-o")) return;
  if (notes.size() > 1) throw CommandLineError("-o attend une seule note");
  if (line.Has("--dry-run")) throw CommandLineError("-o et --dry-run s'excluent");
}

/// Cleans up the note and returns one line per pair with its count.
std::string CleanUp(Note& note, const ListFile& list, const std::string& name) {
  std::string lines;
  try {
    const std::vector<std::int16_t> counts = note.Clean(list.Bytes());
    for (std::size_t i = 0; i < counts.size(); ++i) {
      const auto& [wrong, right] = list.Pairs()[i];
      lines += ToUtf8(wrong + u'\t' + right + u'\t') + std::to_string(counts[i]) + '\n';
    }
  } catch (const RuntimeError& error) {
    throw Failure(name + " : nettoyage impossible : " + error.what());
  }
  return lines;
}

void CleanOne(const CommandLine& line, const ListFile& list, const std::string& name) {
  Note note = ReadNote(name);
  if (note.Source() != Note::Format::Rtf) throw Failure(name + " : pas une note RTF");
  const std::string lines = CleanUp(note, list, name);
  if (!line.Has("--dry-run"))
    return WriteBytes(line.Value("-o").value_or(name), note.Bytes(Note::Format::Rtf));
  const bool several = line.Operands().size() > 1;
  WriteBytes("-", several ? "==> " + name + " <==\n" + lines : lines);
}

}  // namespace

int Clean(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  Check(line);
  const ListFile list(line.Value("--list").value_or(""));
  Progress progress(line.Operands().size());
  int status = 0;
  for (const std::string& name : line.Operands()) {
    progress.Next(name);
    try {
      CleanOne(line, list, name);
    } catch (const Failure& failure) {
      std::cerr << "lumenote : " << failure.what() << '\n';
      status = 1;
    }
  }
  return status;
}

}  // namespace lumenote::tool
