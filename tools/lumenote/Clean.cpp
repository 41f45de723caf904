// lumenote clean: cleans up recognised text in many notes.
#include <iostream>

#include "Command.h"
#include "EachNote.h"
#include "ListFile.h"
#include "NoteFile.h"
#include "NoteNames.h"
#include "base/CommandLine.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--list", true}, {"-o", true}, {"--backup"}, {"--dry-run"}};

void Check(const CommandLine& line) {
  if (line.Operands().empty()) throw CommandLineError("une note est attendue");
  if (line.Has("-o") + line.Has("--backup") + line.Has("--dry-run") > 1)
    throw CommandLineError("-o, --backup et --dry-run s'excluent");
}

/// One line per pair with its count.
std::string Lines(const ListFile& list, const std::vector<std::int16_t>& counts) {
  std::string lines;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const auto& [wrong, right] = list.Pairs()[i];
    lines += ToUtf8(wrong + u'\t' + right + u'\t') + std::to_string(counts[i]) + '\n';
  }
  return lines;
}

std::vector<std::int16_t> CleanUp(Note& note, const ListFile& list, const std::string& name) {
  try {
    return note.Clean(list.Bytes());
  } catch (const RuntimeError& error) {
    throw Failure(name + " : nettoyage impossible : " + error.what());
  }
}

class Cleaning {
 public:
  Cleaning(const CommandLine& line, bool several)
      : line_(line), list_(line.Value("--list").value_or("")), several_(several) {}

  /// Cleans up the note of this name; what it returns puts it where the command line says.
  Finish Clean(const std::string& name);
  /// What became of `total` notes, in one line.
  std::string Summary(std::size_t total) const;

 private:
  void Show(const std::string& name, const std::vector<std::int16_t>& counts) const;
  void Put(const std::string& name, const std::string& before, const std::string& after) const;

  const CommandLine& line_;
  ListFile list_;
  bool several_;
  std::size_t changed_ = 0;
  std::size_t unchanged_ = 0;
};

Finish Cleaning::Clean(const std::string& name) {
  std::string before = ReadBytes(name);
  Note note = NoteOf(name, before);
  if (note.Source() != Note::Format::Rtf) throw Failure(name + " : pas une note RTF");
  std::vector<std::int16_t> counts = CleanUp(note, list_, name);
  return [this, name, counts = std::move(counts), before = std::move(before),
          after = note.Bytes(Note::Format::Rtf)] {
    if (line_.Has("--dry-run"))
      Show(name, counts);
    else
      Put(name, before, after);
    ++(before == after ? unchanged_ : changed_);
  };
}

void Cleaning::Show(const std::string& name, const std::vector<std::int16_t>& counts) const {
  const std::string lines = Lines(list_, counts);
  WriteBytes("-", several_ ? Titled(name, lines) : lines);
}

void Cleaning::Put(const std::string& name, const std::string& before,
                   const std::string& after) const {
  const std::string target = line_.Value("-o").value_or(name);
  if (target == name && target != "-" && before == after) return;
  if (line_.Has("--backup") && name != "-") WriteBytes(name + '~', before);
  WriteBytes(target, after);
}

std::string Cleaning::Summary(std::size_t total) const {
  const auto part = [](std::string_view name, std::size_t count) {
    return " ; " + std::string(name) + " : " + std::to_string(count);
  };
  return "notes : " + std::to_string(total) +
         part(line_.Has("--dry-run") ? "à changer" : "changées", changed_) +
         part("inchangées", unchanged_) + part("refusées", total - changed_ - unchanged_);
}

}  // namespace

int Clean(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  Check(line);
  const auto [notes, several] =
      FindNotes(line.Operands(), [](Note::Format format) { return format == Note::Format::Rtf; });
  if (several && line.Has("-o")) throw CommandLineError("-o attend une seule note");
  Cleaning cleaning(line, several);
  const int status =
      ForEachNote(notes, [&](const NoteName& note) { return cleaning.Clean(note.path); });
  if (several) std::cerr << "lumenote : " << cleaning.Summary(notes.size()) << '\n';
  return status;
}

}  // namespace lumenote::tool
