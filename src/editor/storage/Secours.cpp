#include "editor/storage/Secours.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "editor/storage/DocumentStorage.h"
#include "extapps/WorkCopies.h"
#include "extapps/WorkRecord.h"
#include "forms/Backend.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/StateFolder.h"
#include "session/Session.h"

namespace lumenote {

namespace {

constexpr std::int64_t kMaxCopies = 100'000;  // of one name

std::u16string_view FirstLine(Cause cause) {
  switch (cause) {
    case Cause::EnregistrementImpossible:
      return u"Enregistrement impossible";
    case Cause::FichierModifie:
      return u"Fichier modifié par un autre programme";
    case Cause::NoteRetrouvee:
      return u"Note retrouvée après un arrêt";
    case Cause::FichierTemporaire:
      return u"Erreur fichier temporaire";
  }
  return {};
}

/// The last component by either separator, short enough to take a prefix on any file system.
std::u16string NameToKeep(std::u16string_view path) {
  constexpr std::size_t kLongest = 220;  // bytes of UTF-8
  std::u16string name(path.substr(path.find_last_of(u"\\/") + 1));
  const std::size_t extension = std::min(name.size(), name.rfind(u'.'));
  std::u16string base = name.substr(0, extension);
  name.erase(0, extension);
  while (!base.empty() && ToUtf8(base + name).size() > kLongest) {
    if (base.size() > 1 && IsPairAt(base, base.size() - 2)) base.pop_back();
    base.pop_back();
  }
  return base + name;
}

std::u16string Numbered(std::int64_t copy, std::u16string_view name) {
  const std::u16string number = copy > 1 ? NumberText(copy) + u"_" : std::u16string();
  return u"Secours_" + number + std::u16string(name);
}

/// Tries one name after another until `write` succeeds. Never replaces a file, not even one that
/// another program creates at the same moment.
template <class Write>
std::optional<std::u16string> FirstFree(std::u16string_view name, Write write) {
  for (std::int64_t copy = 1; copy <= kMaxCopies; ++copy) {
    try {
      return write(Numbered(copy, name));
    } catch (const RuntimeError& error) {
      if (error.Number() != static_cast<int>(ErrorNumber::PermissionDenied)) break;
    }
  }
  return std::nullopt;
}

MessageBox BoxFor(Cause cause, const std::vector<std::u16string>& paths) {
  std::u16string text = std::u16string(FirstLine(cause)) + u"\r\nCopie de secours :";
  for (const std::u16string& path : paths) text += u"\r\n" + path;
  return {.text = text, .icon = MessageBox::Icon::Critical};
}

/// Whether the note was saved before its program died.
bool IsStored(const Files& files, const OrphanedCopy& copy) {
  std::string bytes;
  return IsDrivePath(copy.origin) && IgnoringErrors([&] { bytes = files.ReadAll(copy.origin); }) &&
         bytes == copy.bytes;
}

/// Leaves the record, without the results already kept, for the next start.
void LeaveRecord(Platform& machine, SentWorkFile& sent) {
  Record(machine.State(), sent);
  if (sent.record) sent.record->Leave();
}

/// Whether the program may still save.
bool GoesOn(Platform& machine, const SentWorkFile& sent) {
  bool running = true;
  IgnoringErrors([&] { running = machine.Programs().IsRunning(sent.process); });
  return running;
}

/// Makes rescue copies of what a program has saved and adds their paths. False if one failed.
bool KeepResults(Platform& machine, SentWorkFile& sent, std::vector<std::u16string>& paths) {
  return GarderTout(machine.FileSystem(), sent, [&](const std::u16string& result) {
    auto copy = CopierFichier(machine, result);
    if (copy) paths.push_back(*copy);
    return copy.has_value();
  });
}

/// Whether the program that a dead editor started may still save.
bool StillRuns(Platform& machine, std::u16string_view program) {
  bool running = false;
  IgnoringErrors([&] { running = machine.Programs().StillRunning(program).has_value(); });
  return running;
}

/// Makes rescue copies of the results for a dead editor. False if the record has to wait until the
/// program ends or a copy can be written.
bool KeepLate(Platform& machine, const OrphanedCopy& record, std::vector<std::u16string>& paths) {
  auto sent = SentOf(record);
  if (!sent) return true;
  return !StillRuns(machine, sent->program) && KeepResults(machine, *sent, paths);
}

}  // namespace

std::optional<std::u16string> EcrireSecours(Platform& machine, std::u16string_view name,
                                            std::string_view bytes) {
  const std::u16string kept = NameToKeep(name);
  auto path = FirstFree(kept, [&](const std::u16string& free) {
    Files& files = machine.FileSystem();
    std::u16string wanted = machine.SpecialFolders().Documents() + u"\\" + free;
    if (files.Exists(wanted)) throw RuntimeError(ErrorNumber::PermissionDenied);
    files.WriteNew(wanted, bytes, Permissions::UserOnly);
    return wanted;
  });
  if (path) return path;
  return FirstFree(
      kept, [&](const std::u16string& free) { return machine.State().KeepForGood(free, bytes); });
}

std::optional<std::u16string> CopierFichier(Platform& machine, std::u16string_view path) {
  std::string bytes;
  if (!IgnoringErrors([&] { bytes = machine.FileSystem().ReadAll(path); })) return std::nullopt;
  return EcrireSecours(machine, path, bytes);
}

void AnnoncerSecours(EditorWindow& editor, Cause cause, const std::vector<std::u16string>& paths) {
  if (!paths.empty()) editor.AskOver(BoxFor(cause, paths));
}

bool GarderNote(EditorWindow& editor, Cause cause) {
  const Session& session = editor.Values();
  const auto path = EcrireSecours(editor.Services(), session.documentPath,
                                  editor.Document().FileBytes(TypeDe(session.format)));
  if (path) AnnoncerSecours(editor, cause, {*path});
  return path.has_value();
}

bool GarderRetours(Platform& machine, const std::vector<SentWorkFile>& outstanding) {
  std::vector<std::u16string> paths;
  bool all = true;
  for (SentWorkFile sent : outstanding) {
    const bool kept = KeepResults(machine, sent, paths);
    if (!kept || GoesOn(machine, sent)) LeaveRecord(machine, sent);
    all = all && kept;
  }
  if (!paths.empty()) machine.Windows().Show(BoxFor(Cause::FichierModifie, paths), nullptr);
  return all;
}

void RetrouverNotes(EditorWindow& editor) {
  Platform& machine = editor.Services();
  std::vector<std::u16string> paths;
  machine.State().ClaimOrphans([&](const OrphanedCopy& left) {
    if (IsRecord(left)) return KeepLate(machine, left, paths);
    if (IsStored(machine.FileSystem(), left)) return true;
    const auto path = EcrireSecours(machine, left.origin, left.bytes);
    if (path) paths.push_back(*path);
    return path.has_value();
  });
  AnnoncerSecours(editor, Cause::NoteRetrouvee, paths);
}

}  // namespace lumenote
