// lumenote clean: recognised text cleaned up, many notes at a time.
#include <iostream>

#include "Command.h"
#include "ListFile.h"
#include "NoteFile.h"
#include "Progress.h"
#include "backends/posix/AtomicFile.h"
#include "backends/posix/Descriptor.h"
#include "base/CommandLine.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "ocr/Cleanup.h"
#include "rtf/Reader.h"

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

/// Does `act` to the file `name`; a run-time error says that the file `what`.
template <class Act>
auto OnFile(const std::string& name, const char* what, Act act) {
  try {
    return act();
  } catch (const RuntimeError& error) {
    throw Failure(name + " : " + what + " : " + error.what());
  }
}

std::string ReadRtf(const std::string& name) {
  std::string bytes =
      OnFile(name, "lecture impossible", [&] { return ReadWholeFile(Absolute(name)); });
  if (!LooksLikeRtf(bytes) || FormatOfName(name) == Format::Text)
    throw Failure(name + " : pas une note RTF");
  return bytes;
}

void WriteCleaned(Note& note, ListFile& list, const std::string& name, const std::string& target) {
  constexpr mode_t kNewFileMode = 0666;
  OnFile(name, "nettoyage impossible",
         [&] { NettoyerTexte(note.Surface(), list.Disk(), list.Path()); });
  OnFile(target, "écriture impossible",
         [&] { ReplaceFile(Absolute(target), note.Bytes(Format::Rtf), kNewFileMode); });
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
  Note note(name, ReadRtf(name));
  if (!line.Has("--dry-run"))
    return WriteCleaned(note, list, name, line.Value("-o").value_or(name));
  const std::string lines =
      OnFile(name, "nettoyage impossible", [&] { return Foretell(note.Surface(), list); });
  if (line.Operands().size() > 1) std::cout << "==> " << name << " <==\n";
  std::cout << lines << std::flush;
  if (!std::cout) throw Failure("sortie standard : écriture impossible");
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
