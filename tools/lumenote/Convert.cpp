// lumenote convert: converts notes between RTF, plain text and HTML.
#include <algorithm>
#include <iostream>
#include <set>

#include "Command.h"
#include "EachNote.h"
#include "NoteFile.h"
#include "NoteNames.h"
#include "backends/native/files/Disk.h"
#include "base/CommandLine.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--to", true}};

/// The format given by --to, if it is.
std::optional<Note::Format> GivenFormat(const CommandLine& line) {
  const auto to = line.Value("--to");
  if (!to) return {};
  if (*to == "rtf") return Note::Format::Rtf;
  if (*to == "txt") return Note::Format::Text;
  if (*to == "html") return Note::Format::Html;
  throw CommandLineError("--to attend rtf, txt ou html");
}

Note::Format OtherThan(Note::Format format) {
  return format == Note::Format::Rtf ? Note::Format::Text : Note::Format::Rtf;
}

void ConvertOne(const std::string& source, const std::string& target,
                std::optional<Note::Format> format) {
  if (!format) format = FormatOfName(target);
  if (!format && target != "-")
    throw CommandLineError(target + " : extension .rtf, .txt ou .html attendue, ou --to");
  const Note note = ReadNote(source);
  WriteBytes(target, note.Bytes(format.value_or(OtherThan(note.Source()))));
}

bool IsFolder(const std::string& path) { return path != "-" && IsRealFolder(AbsolutePath(path)); }

bool LieTogether(const std::string& path, const std::string& other) {
  const auto folder = StatusOf(ParentOf(path)), others = StatusOf(ParentOf(other));
  return folder && others && folder->id == others->id;
}

/// Converts many notes into files of one folder, or of folders in it as they lie in theirs.
class IntoFolder {
 public:
  IntoFolder(const std::string& folder, Note::Format format, std::string extension)
      : folder_(AbsolutePath(folder)), format_(format), extension_(std::move(extension)) {}

  void Convert(const NoteName& note);
  std::size_t Converted() const { return targets_.size(); }

 private:
  std::string TargetOf(const NoteName& note) const;

  std::string folder_;
  Note::Format format_;
  std::string extension_;
  std::set<std::string> targets_;
};

std::string IntoFolder::TargetOf(const NoteName& note) const {
  const std::size_t dot = note.below.rfind('.');
  const bool named = dot != note.below.npos && note.below.find('/', dot) == note.below.npos;
  return folder_ + '/' + note.below.substr(0, named ? dot : note.below.npos) + '.' + extension_;
}

// Beside its source, a file of that name is a note of its own more often than an older result.
void IntoFolder::Convert(const NoteName& note) {
  const std::string target = TargetOf(note);
  if (targets_.contains(target))
    throw Failure(note.path + " : " + target + " vient d'une autre note");
  if (LieTogether(AbsolutePath(note.path), target) && StatusOf(target))
    throw Failure(target + " : existe déjà");
  const std::string bytes = ReadNote(note.path).Bytes(format_);
  MakeFolders(ParentOf(target));
  WriteBytes(target, bytes);
  targets_.insert(target);
}

int ConvertAll(std::span<const std::string> sources, const std::string& folder, Note::Format format,
               const std::string& extension) {
  if (std::ranges::find(sources, "-") != sources.end())
    throw CommandLineError("l'entrée standard n'a pas de nom pour un dossier");
  const auto notes = FindNotes(sources, [&](Note::Format one) { return one != format; }).notes;
  IntoFolder into(folder, format, extension);
  const int status = ForEachNote(notes, [&](const NoteName& note) { into.Convert(note); });
  std::cerr << "lumenote : notes : " << notes.size() << " ; converties : " << into.Converted()
            << " ; refusées : " << notes.size() - into.Converted() << '\n';
  return status;
}

}  // namespace

int Convert(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  const std::vector<std::string>& operands = line.Operands();
  if (operands.size() < 2) throw CommandLineError("une note et une cible sont attendues");
  const std::optional<Note::Format> format = GivenFormat(line);
  const std::string& target = operands.back();
  if (operands.size() == 2 && !IsFolder(operands[0]) && !IsFolder(target)) {
    ConvertOne(operands[0], target, format);
    return 0;
  }
  if (!format) throw CommandLineError("vers un dossier, --to est attendu");
  return ConvertAll(std::span(operands).first(operands.size() - 1), target, *format,
                    *line.Value("--to"));
}

}  // namespace lumenote::tool
