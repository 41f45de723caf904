// The states of an exchange.
#include "extapps/RoundTrip.h"

#include <array>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "control/Session.h"
#include "extapps/WorkCopies.h"
#include "forms/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

/// Of one external editor: its row in the table, and what the messages call it.
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

constexpr int kPatience = 5000 / RoundTrip::kInterval;  // ticks for programs to end

// The states that do something; those between them let time pass.
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
  return programs_.Path(EditorOf(type_).program);
}

// --- commands

void RoundTrip::Appeler(std::int32_t type) {
  type_ = type;
  if (editor_.Values().readOnly) {
    editor_.AskOver({.text = u"Fichier en 'lecture seule'\r\nAbandon de l'appel " +
                             std::u16string(EditorOf(type).abandoned),
                     .title = u"Attention",
                     .icon = MessageBox::Icon::Exclamation});
  } else if (!Disk().Exists(ProgramPath())) {
    editor_.AskOver(
        {.text = std::u16string(EditorOf(type).missing), .icon = MessageBox::Icon::Critical});
  } else {
    EditerAvec(type);
  }
}

void RoundTrip::EditerAvec(std::int32_t type) {
  type_ = type;
  if (!Disk().Exists(ProgramPath())) {
    editor_.AskOver({.text = std::u16string(EditorOf(type).notStarted) + u"\r\nEdition impossible",
                     .icon = MessageBox::Icon::Information});
    return;
  }
  desk_.Watch(true);
  state_ = 0;
}

// --- the watch

void RoundTrip::TimerWpd_Timer() {
  state_ = ToInt16(std::int64_t{state_} + 1);
  switch (state_) {
    case kTerminate:
      return TerminateInstances();
    case kPrepare:
      return AwaitInstances();
    case kWrite:
      return WriteNote();
    case kTakeTime:
      IgnoringErrors([&] { workTime_ = TimeOfWorkFile(); });
      return;
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
      return desk_.Watch(false);
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
    const auto error = path.empty() ? std::nullopt : processes_.Lingering(path);
    if (error) return error;
  }
  return std::nullopt;
}

/// A program that was asked to end may first write its files, or ask its user. The work file must
/// not be there yet, lest it write that.
void RoundTrip::AwaitInstances() {
  const auto error = Lingering();
  if (error && patience_-- > 0) {
    state_ = kTerminate;
    return;
  }
  PrepareWorkFile();
  if (error) Report(*error);
}

void RoundTrip::PrepareWorkFile() {
  const std::u16string name = FileName(editor_.Values().documentPath);
  workFile_ = FoldBackslashes(programs_.dossierTemp + u"\\Sav" + name);
  PurgeSavNotes(Disk(), programs_.dossierTemp, name);
  PurgeSavNotes(Disk(), programs_.dossierDocuments, name);
  for (const Program program : {Program::Qjot, Program::Atlantis}) {
    const std::u16string folder = ParentFolder(programs_.Path(program));
    if (!folder.empty()) PurgeSavNotes(Disk(), folder, name);
  }
}

void RoundTrip::WriteNote() {
  const Session& session = editor_.Values();
  noteOnDisk_ = false;
  if (session.format != u"txt" && session.format != u"rtf") return;
  const FileType type = session.format == u"txt" ? FileType::Text : FileType::Rtf;
  RichTextSurface& document = editor_.Document();
  IgnoringErrors([&] { document.SaveFile(workFile_, type); });
  noteOnDisk_ = IgnoringErrors([&] { document.SaveFile(session.documentPath, type); });
}

std::u16string RoundTrip::TimeOfWorkFile() {
  return NumberText(Disk().ModificationTime(workFile_));
}

std::u16string RoundTrip::CommandLine() const {
  std::u16string line = Quoted(ProgramPath()) + u" " + Quoted(workFile_);
  if (type_ == kWord) line += u" /l" + Quoted(editor_.Values().templatePath);
  return FoldBackslashes(line);
}

void RoundTrip::StartProgram() {
  process_ = 0;
  if (!Disk().Exists(workFile_)) {
    ReportWorkFile();
    state_ = kFinish;
    return;
  }
  editor_.SuspendreDessus();
  process_ = processes_.Start(CommandLine());
}

void RoundTrip::ReportWorkFile() {
  editor_.AskOver({.text = u"Erreur fichier temporaire", .icon = MessageBox::Icon::Critical});
}

// --- the way back

void RoundTrip::BringBack() {
  Session& session = editor_.Values();
  Files& files = Disk();
  if (type_ == kQjot) RapatriFch(files, ParentFolder(ProgramPath()), workFile_);
  if (type_ == kAtlantis) RapatriFch(files, programs_.dossierDocuments, workFile_);
  IgnoringErrors([&] {
    if (TimeOfWorkFile() == workTime_) files.Delete(workFile_, false);
  });
  const std::u16string result = TrouverRetour(files, workFile_);
  if (result.empty()) return;
  if (!EstEntier(files, result)) return ReportWorkFile();
  workFile_ = result;
  const std::u16string extension = result.substr(result.size() - 3);
  const std::u16string target =
      extension == u"sav" ? session.documentPath : ChmExts(session.documentPath, extension);
  IgnoringErrors([&] {
    Remplacer(files, result, target);
    session.documentPath = target;
    noteOnDisk_ = true;
  });
}

void RoundTrip::Finish() {
  desk_.Watch(false);
  if (noteOnDisk_) desk_.Reload();
  editor_.RetablirDessus();
}

}  // namespace lumenote
