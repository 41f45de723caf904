// lumenote clean: recognised text cleaned up, many notes at a time.
#include <iostream>

#include "Command.h"
#include "ListFile.h"
#include "NoteFile.h"
#include "Progress.h"
#include "base/CommandLine.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "ocr/Cleanup.h"

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

/// Does `act` to the note `name`; a run-time error says that it cannot be cleaned up.
template <class Act>
auto Cleaning(const std::string& name, Act act) {
  try {
    return act();
  } catch (const RuntimeError& error) {
    throw Failure(name + " : nettoyage impossible : " + error.what());
  }
}

/// A line for each pair. The blanks are set too, since the note may grow too long by them.
std::string Foretell(RichTextSurface& surface, const ListFile& list) {
  std::string lines;
  for (const auto& [wrong, right] : list.Pairs()) {
    const int count = RemplacerTout(surface, wrong, right);
    lines += ToUtf8(wrong + u'\t' + right + u'\t') + std::to_string(count) + '\n';
  }
  NormaliserEspaces(surface);
  return lines;
}

void CleanOne(const CommandLine& line, ListFile& list, const std::string& name) {
  Note note(name, ReadBytes(name));
  if (note.Source() != Format::Rtf) throw Failure(name + " : pas une note RTF");
  if (!line.Has("--dry-run")) {
    Cleaning(name, [&] { NettoyerTexte(note.Surface(), list.Disk(), list.Path()); });
    return WriteBytes(line.Value("-o").value_or(name), note.Bytes(Format::Rtf));
  }
  std::string lines = Cleaning(name, [&] { return Foretell(note.Surface(), list); });
  if (line.Operands().size() > 1) lines.insert(0, "==> " + name + " <==\n");
  WriteBytes("-", lines);
}

}  // namespace

int Clean(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  Check(line);
  ListFile list(line.Value("--list").value_or(""));
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
