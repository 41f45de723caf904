// The states of a round trip.
#include "extapps/RoundTrip.h"

#include <array>
#include <utility>
#include <vector>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/ScopedFlag.h"
#include "extapps/WorkCopies.h"
#include "extapps/WorkRecord.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"
#include "session/Session.h"

namespace lumenote {
namespace {

/// An external editor: its program, and its name in the messages.
struct Editor {
  Program program;
  std::u16string_view abandoned;
  std::u16string_view missing;
  std::u16string_view notStarted;
};

constexpr std::array<Editor, 3> kEditors{{
    {Program::Qjot, u"Qjot", u"Editeur Qjot Introuvable", u"Editeur Qjot introuvable"},
    {Program::Atlantis, u"Atlantis", u"Atlantis Nova Introuvable", u"Atlantis Nova introuvable"},
    {Program::WinWord, u"WinWord", u"MS WinWord Introuvable", u"MS Word introuvable"},
}};

constexpr std::array kToTerminate{Program::Qjot, Program::WinWord, Program::Atlantis};

const Editor& EditorOf(std::int32_t type) { return kEditors[static_cast<std::size_t>(type) - 1]; }

constexpr int kPatience = 250;  // ticks in which programs may end

// The states with an action; the others only let time pass.
enum State : std::int16_t {
  kTerminate = 1,
  kPrepare = 2,
  kWrite = 3,
  kTakeTime = 14,
  kStart = 15,
  kBeforePoll = 26,
  kPoll = 27,
  kBringBack = 28,
  kFinish = 29,
  kStop = 30,
};

}  // namespace

Files& RoundTrip::Disk() { return editor_.Services().FileSystem(); }

const std::u16string& RoundTrip::ProgramPath() const {
  return programs_.Path(EditorOf(running_).program);
}

std::u16string RoundTrip::ProgramCopies() const {
  if (running_ == kQjot) return ParentFolder(ProgramPath());
  return running_ == kAtlantis ? programs_.dossierDocuments : std::u16string();
}

// --- commands

void RoundTrip::Appeler(std::int32_t type) {
  type_ = type;
  if (editor_.Values().readOnly) {
    editor_.AskOver({.text = u"Fichier en 'lecture seule'\r\nAbandon de l'appel " +
                             std::u16string(EditorOf(type).abandoned),
                     .title = u"Attention",
                     .icon = MessageBox::Icon::Exclamation});
  } else if (!Disk().Exists(programs_.Path(EditorOf(type).program))) {
    editor_.AskOver(
        {.text = std::u16string(EditorOf(type).missing), .icon = MessageBox::Icon::Critical});
  } else {
    EditerAvec(type);
  }
}

void RoundTrip::EditerAvec(std::int32_t type) {
  type_ = type;
  if (!Disk().Exists(programs_.Path(EditorOf(type).program))) {
    editor_.AskOver({.text = std::u16string(EditorOf(type).notStarted) + u"\r\nEdition impossible",
                     .icon = MessageBox::Icon::Information});
    return;
  }
  client_.Watch(true);
  running_ = type;
  state_ = 0;
  waiting_ = false;
}

// --- ticks

// A tick is ignored while an earlier one still shows a box.
void RoundTrip::TimerWpd_Timer() {
  if (busy_) return;
  const ScopedFlag busy(busy_);
  Step();
}

void RoundTrip::Step() {
  if (!waiting_) state_ = ToInt16(std::int64_t{state_} + 1);
  switch (state_) {
    case kTerminate:
      return TerminateInstances();
    case kPrepare:
      return AwaitInstances();
    case kWrite:
      return WriteNote();
    case kTakeTime:
      return TakeTime();
    case kStart:
      return StartProgram();
    case kPoll:
      if (processes_.IsRunning(process_)) state_ = kBeforePoll;
      return;
    case kBringBack:
      return BringBack();
    case kFinish:
      return Finish();
    case kStop:
      return client_.Watch(false);
    default:
      return;
  }
}

void RoundTrip::TerminateInstances() {
  patience_ = kPatience;
  for (const Program program : kToTerminate) TuerParNom(program);
}

void RoundTrip::TuerParNom(Program program) {
  const std::u16string& path = programs_.Path(program);
  if (path.empty()) return;
  if (const auto error = processes_.Terminate(path)) Report(*error);
}

void RoundTrip::Report(const SystemError& error) {
  editor_.AskOver({.text = u"Destruction Windows Erreur : Error #" +
                           NumberText(std::int64_t{error.number}) + u" " + error.description,
                   .icon = MessageBox::Icon::Critical});
}

std::optional<SystemError> RoundTrip::Lingering() {
  for (const Program program : kToTerminate) {
    const std::u16string& path = programs_.Path(program);
    auto error = path.empty() ? std::nullopt : processes_.StillRunning(path);
    if (error) return error;
  }
  return std::nullopt;
}

/// A program that was asked to quit may first save its files or ask its user, so the work file is
/// created only once it has gone.
void RoundTrip::AwaitInstances() {
  const auto error = Lingering();
  waiting_ = error && --patience_ > 0;
  if (waiting_) return;
  const bool kept = KeepEarlierResults();
  if (editor_.Values().closed) return;
  if (kept)
    PrepareWorkFile();
  else
    GiveUp();
  if (error) Report(*error);
}

void RoundTrip::PrepareWorkFile() {
  const std::u16string& document = editor_.Values().documentPath;
  workFile_ = FoldBackslashes(programs_.dossierTemp + u"\\Sav" + FileName(document));
  PurgeSavNotes(Disk(), programs_.dossierTemp, document);
  PurgeSavNotes(Disk(), programs_.dossierDocuments, document);
  for (const Program program : {Program::Qjot, Program::Atlantis}) {
    const std::u16string folder = ParentFolder(programs_.Path(program));
    if (!folder.empty()) PurgeSavNotes(Disk(), folder, document);
  }
  old_ = TracesDe(Disk(), workFile_, ProgramCopies());
}

void RoundTrip::WriteNote() {
  const Session& session = editor_.Values();
  workWritten_ = noteOnDisk_ = broughtBack_ = false;
  if (session.format != u"txt" && session.format != u"rtf") return;
  const FileType type = session.format == u"txt" ? FileType::Text : FileType::Rtf;
  changesWritten_ = session.changes;
  workWritten_ = IgnoringErrors([&] { editor_.Document().SaveFile(workFile_, type); });
  noteOnDisk_ = client_.WriteNote();
}

void RoundTrip::TakeTime() {
  workTime_.clear();
  IgnoringErrors([&] { workTime_ = NumberText(Disk().ModificationTime(workFile_)); });
}

std::u16string RoundTrip::CommandLine() const {
  std::u16string line = QuotedProgram(ProgramPath()) + u" " + Quoted(workFile_);
  if (running_ == kWord) line += u" /l" + Quoted(editor_.Values().templatePath);
  return line;
}

void RoundTrip::StartProgram() {
  process_ = 0;
  if (!workWritten_ || !Disk().Exists(workFile_)) return GiveUp();
  editor_.SuspendreDessus();
  const FileTrace out = TraceDe(Disk(), workFile_);
  sent_ = SentWorkFile{.program = ProgramPath(),
                       .path = workFile_,
                       .time = out.time,
                       .folder = ProgramCopies(),
                       .old = old_};
  sent_->old.push_back(out);
  Record(editor_.Services().State(), *sent_);
  process_ = processes_.Start(CommandLine());
  sent_->process = process_;
}

void RoundTrip::GiveUp() {
  ReportWorkFile();
  state_ = kFinish;
}

void RoundTrip::ReportWorkFile() {
  editor_.AskOver({.text = u"Erreur fichier temporaire", .icon = MessageBox::Icon::Critical});
}

// --- the way back

void RoundTrip::BringBack() {
  if (!sent_) return;
  SentWorkFile sent = *std::exchange(sent_, std::nullopt);
  const std::u16string result = Reprendre(Disk(), sent);
  IgnoringErrors([&] {
    if (Disk().ModificationTime(sent.path) == sent.time) Disk().Delete(sent.path, false);
  });
  if (result.empty()) return;
  workFile_ = result;
  if (BringOnto(result)) return RememberOthers(std::move(sent));
  const auto copy = client_.CopyFile(result);
  if (!copy) {
    outstanding_.push_back(std::move(sent));
    return ReportWorkFile();
  }
  sent.old.push_back(TraceDe(Disk(), result));
  RememberOthers(std::move(sent));
  client_.Announce(Cause::FichierTemporaire, {*copy});
}

/// A program may have saved the note in several formats, only one of which came back.
void RoundTrip::RememberOthers(SentWorkFile sent) {
  sent.folder.clear();
  if (!Reprendre(Disk(), sent).empty()) outstanding_.push_back(std::move(sent));
}

std::u16string RoundTrip::TargetOf(std::u16string_view result) {
  const std::u16string& document = editor_.Values().documentPath;
  const std::u16string extension = Lower(result.substr(result.size() - 3));
  if (extension == u"sav" || extension == editor_.Values().format) return document;
  const std::u16string target = ChmExts(document, extension);
  const auto existing = EnTouteCasse(Disk(), target);
  return existing.empty() ? target : existing.front();
}

bool RoundTrip::BringOnto(const std::u16string& result) {
  const std::u16string target = TargetOf(result);
  const bool text = Lower(target).ends_with(u"txt");
  const bool mayBeEmpty = editor_.Document().TextLength() == 0;
  if (!EstEntier(Disk(), result, text, mayBeEmpty)) return false;
  // Under the other format's name the note could not be saved as it is.
  if (target != editor_.Values().documentPath && !KeepTyped()) return false;
  return IgnoringErrors([&] {
    Remplacer(Disk(), result, target);
    editor_.Values().documentPath = target;
    noteOnDisk_ = broughtBack_ = true;
  });
}

void RoundTrip::Finish() {
  client_.Watch(false);
  if (noteOnDisk_) {
    const bool kept = KeepTyped();
    if (!editor_.Values().closed) kept ? client_.Reload() : client_.GoOnUnsaved();
  }
  editor_.RetablirDessus();
}

/// Keeps what was typed meanwhile, since the reload drops it. False if it could not be kept.
bool RoundTrip::KeepTyped() {
  const Session& session = editor_.Values();
  const bool typed = session.changes != changesWritten_ && (session.dirty || broughtBack_);
  if (!typed) return true;
  const std::uint64_t changes = session.changes;
  const bool kept = client_.KeepNote();
  if (kept) changesWritten_ = changes;
  return kept;
}

// --- late results

RoundTrip::~RoundTrip() {
  IgnoringErrors([this] { TranslateBadAlloc([this] { Leave(); }); });
}

void RoundTrip::Leave() {
  if (!sent_) return;
  outstanding_.push_back(*sent_);
  sent_.reset();
}

// The host may close the editor in the box; the next editor then takes over the list.
template <class Ready>
bool RoundTrip::RescueResults(Ready ready) {
  std::vector<std::u16string> copies;
  const auto keep = [&](const std::u16string& result) {
    auto copy = client_.CopyFile(result);
    if (copy) copies.push_back(*copy);
    return copy.has_value();
  };
  std::vector<SentWorkFile> still;
  for (SentWorkFile& sent : outstanding_)
    if (!ready(sent) || !GarderTout(Disk(), sent, keep)) still.push_back(sent);
  outstanding_ = std::move(still);
  const bool all = outstanding_.empty();
  client_.Announce(Cause::FichierModifie, copies);
  return all;
}

bool RoundTrip::KeepEarlierResults() {
  Leave();
  return RescueResults([](const SentWorkFile&) { return true; });
}

void RoundTrip::RescueLateResults() {
  RescueResults([this](const SentWorkFile& sent) { return !processes_.IsRunning(sent.process); });
}

}  // namespace lumenote
