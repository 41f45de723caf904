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

constexpr OptionRule kOptions[] = {{"--to", true}, {"--backup"}, {"--dry-run"}};

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

/// Puts what the note `source` became into `target`, or says where it would go.
void Put(const CommandLine& line, const std::string& source, const std::string& target,
         std::string_view bytes) {
  const bool replaces = target != "-" && StatusOf(AbsolutePath(target));
  if (line.Has("--dry-run"))
    return WriteBytes("-", source + '\t' + target + (replaces ? "\tremplacée\n" : "\n"));
  if (replaces && line.Has("--backup")) WriteBytes(target + '~', ReadBytes(target));
  WriteBytes(target, bytes);
}

bool AreTheSame(const std::string& path, const std::string& other) {
  const auto status = StatusOf(path), others = StatusOf(other);
  return status && others && status->id == others->id;
}

bool IsItself(const std::string& source, const std::string& target) {
  return source != "-" && target != "-" && AreTheSame(AbsolutePath(source), AbsolutePath(target));
}

void ConvertOne(const CommandLine& line, const std::string& source, const std::string& target,
                std::optional<Note::Format> format) {
  const std::optional<Note::Format> named = FormatOfName(target);
  if (format && named && named != format)  // more likely a note than where its result is to go
    throw CommandLineError(target + " : l'extension contredit --to");
  if (!format) format = named;
  if (!format && target != "-")
    throw CommandLineError(target + " : extension .rtf, .txt ou .html attendue, ou --to");
  const Note note = ReadNote(source);
  if (!format) format = OtherThan(note.Source());
  if (format != note.Source() && IsItself(source, target))
    throw Failure(target + " : est la note elle-même");
  Put(line, source, target, note.Bytes(*format));
}

/// Whether several notes, or notes in a folder, go into a folder.
bool IsForFolder(const std::vector<std::string>& operands) {
  const auto isFolder = [](const std::string& path) { return path != "-" && IsFolder(path); };
  return operands.size() > 2 || std::ranges::any_of(operands, isFolder) ||
         AbsolutePath(operands.back()).ends_with('/');
}

/// Converts many notes into files of one folder, or of folders in it as they lie in theirs.
class IntoFolder {
 public:
  /// --to is given.
  IntoFolder(const CommandLine& line, Note::Format format, const std::vector<NoteName>& notes)
      : line_(line),
        folder_(line.Operands().back()),
        format_(format),
        extension_(*line.Value("--to")) {
    for (const NoteName& note : notes) Keep(note.path);
  }

  /// Converts the note; what it returns puts it into its file.
  Finish Convert(const NoteName& note);
  /// What became of `total` notes, in one line.
  std::string Summary(std::size_t total) const;

 private:
  std::string TargetOf(const NoteName& note) const;
  void Keep(const std::string& path);
  /// Raises `Failure` where another note is, or has gone.
  void Check(const NoteName& note, const std::string& target) const;

  const CommandLine& line_;
  std::string folder_;
  Note::Format format_;
  std::string extension_;
  std::set<std::string> targets_;
  std::set<FileId> kept_;  // the notes and what they became, by whatever name they are reached
};

std::string IntoFolder::TargetOf(const NoteName& note) const {
  const std::size_t dot = note.below.rfind('.');
  const bool named = dot != note.below.npos && note.below.find('/', dot) == note.below.npos;
  return PathIn(folder_, note.below.substr(0, named ? dot : note.below.npos) + '.' + extension_);
}

void IntoFolder::Keep(const std::string& path) {
  if (const auto status = StatusOf(AbsolutePath(path))) kept_.insert(status->id);
}

// Beside its source, a file of that name is a note of its own more often than an older result.
void IntoFolder::Check(const NoteName& note, const std::string& target) const {
  if (targets_.contains(target))
    throw Failure(note.path + " : " + target + " vient d'une autre note");
  const std::string path = FollowLinks(AbsolutePath(target));
  const auto there = StatusOf(path);
  if (there &&
      (kept_.contains(there->id) || AreTheSame(ParentOf(AbsolutePath(note.path)), ParentOf(path))))
    throw Failure(target + " : existe déjà");
}

Finish IntoFolder::Convert(const NoteName& note) {
  return [this, &note, bytes = ReadNote(note.path).Bytes(format_)] {
    const std::string target = TargetOf(note);
    Check(note, target);
    if (!line_.Has("--dry-run")) MakeFolders(ParentOf(AbsolutePath(target)));
    Put(line_, note.path, target, bytes);
    targets_.insert(target);
    if (!line_.Has("--dry-run")) Keep(target);
  };
}

std::string IntoFolder::Summary(std::size_t total) const {
  return "notes : " + std::to_string(total) +
         (line_.Has("--dry-run") ? " ; à convertir : " : " ; converties : ") +
         std::to_string(targets_.size()) +
         " ; refusées : " + std::to_string(total - targets_.size());
}

int ConvertAll(const CommandLine& line, Note::Format format) {
  const auto sources = std::span(line.Operands()).first(line.Operands().size() - 1);
  if (std::ranges::find(line.Operands(), "-") != line.Operands().end())
    throw CommandLineError("\"-\" ne va pas avec plusieurs notes ni avec un dossier");
  const auto notes = FindNotes(sources, [&](Note::Format one) { return one != format; }).notes;
  IntoFolder into(line, format, notes);
  const int status = ForEachNote(notes, [&](const NoteName& note) { return into.Convert(note); });
  std::cerr << "lumenote : " << into.Summary(notes.size()) << '\n';
  return status;
}

}  // namespace

int Convert(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  const std::vector<std::string>& operands = line.Operands();
  if (operands.size() < 2) throw CommandLineError("une note et une cible sont attendues");
  if (line.Has("--backup") && line.Has("--dry-run"))
    throw CommandLineError("--backup et --dry-run s'excluent");
  const std::optional<Note::Format> format = GivenFormat(line);
  if (IsForFolder(operands)) {
    if (!format) throw CommandLineError("vers un dossier, --to est attendu");
    return ConvertAll(line, *format);
  }
  ConvertOne(line, operands[0], operands[1], format);
  return 0;
}

}  // namespace lumenote::tool
