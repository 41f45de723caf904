#include "lumenote/CoBxRtf.h"

#include <exception>
#include <utility>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "control/Component.h"
#include "editor/storage/Secours.h"
#include "editor/storage/SessionLife.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace lumenote {

namespace {

bool IsReadOnlyAccess(std::u16string_view access) {
  const std::u16string lower = Lower(access);
  return lower == u"readonly" || lower == u"lectureseule";
}

[[noreturn]] void RaiseIn(std::u16string_view member, ErrorNumber number) {
  RuntimeError error(number);
  error.Member(member);
  throw error;
}

/// Runs the body of one member; what it raises is a run-time error that names the member.
template <class Body>
auto Named(std::u16string_view member, Body body) {
  try {
    return body();
  } catch (RuntimeError& error) {
    error.Member(member);
    throw;
  } catch (const std::bad_alloc&) {
    RaiseIn(member, ErrorNumber::OutOfMemory);
  } catch (const std::exception&) {
    RaiseIn(member, ErrorNumber::Internal);
  }
}

/// The same on the control's thread only. The parts outlive the call even when an event of the host
/// destroys the control meanwhile.
template <class Body>
auto Guarded(const std::shared_ptr<Component>& control, std::u16string_view member, Body body) {
  return Named(member, [&, parts = control] {
    if (parts->thread != std::this_thread::get_id())
      throw RuntimeError(ErrorNumber::InvalidArgument,
                         u"Appel depuis un autre fil d'exécution que celui du contrôle");
    return body(*parts);
  });
}

void Store(const std::shared_ptr<Component>& parts, std::u16string_view member,
           std::u16string Session::*value, std::u16string_view text) {
  Guarded(parts, member, [&](Component& its) { (*its.session).*value = text; });
}

std::int32_t ColourOf(const std::u16string& text) {
  try {
    return ParseInt32(text);
  } catch (RuntimeError& error) {
    error.Member(u"pCouleurFen");
    throw;
  }
}

/// Shows the editor and returns the session that it works on.
std::shared_ptr<Session> Open(Component& parts) {
  std::shared_ptr<Session> session = parts.session;
  const bool open = parts.editor.Loaded() != nullptr;
  Co_Rtf& editor = parts.editor.Get();
  const Form::InUse use(editor);
  editor.Fr_Notes.Caption(session->frameTitle);
  if (!open) session->readOnly = IsReadOnlyAccess(session->access);
  if (TrimSpaces(session->windowTitle).empty()) session->windowTitle.clear();
  editor.Caption(session->windowTitle);
  editor.Load();
  editor.BackColor(session->colour);
  session->closed = false;
  editor.Show();
  return session;
}

/// The note of the next opening, which is this one unless the editor is open.
void PutNote(Component& parts, std::u16string_view note, NoteKind kind) {
  Session& session = *parts.session;
  if (!parts.editor.Loaded()) return PrendreNote(session, note, kind);
  session.note = note;
  session.noteKind = kind;
  session.noteReplaced = true;
}

}  // namespace

CoBxRtf::CoBxRtf(Platform& platform)
    : parts_(Named(u"CoBxRtf", [&] { return std::make_shared<Component>(platform); })) {}

CoBxRtf::CoBxRtf(const std::shared_ptr<Platform>& platform) : CoBxRtf(*platform) {
  parts_->platform = platform;
}

CoBxRtf::~CoBxRtf() {
  const auto close = [&] {
    parts_->closed = nullptr;
    Co_Rtf* editor = parts_->editor.Loaded();
    if (editor) editor->Values().noteReplaced = true;  // nobody reads it any more
    if (editor && !editor->Unload()) editor->Abandon();
    if (!GarderRetours(parts_->windows.Machine(), parts_->outstandingWork)) parts_->temp->Keep();
  };
  IgnoringErrors([&] { Named(u"~CoBxRtf", close); });
  parts_->editor.KeepAlive(parts_);
}

void CoBxRtf::pNomAppli(std::u16string_view name) {
  Store(parts_, u"pNomAppli", &Session::applicationName, name);
}

void CoBxRtf::pChmAppli(std::u16string_view path) {
  Guarded(parts_, u"pChmAppli", [&](Component& parts) {
    const std::u16string& list = parts.session->listCorrPath =
        FoldBackslashes(ParentFolder(path) + u"\\ListCorr.txt");
    IgnoringErrors([&] {
      Files& files = parts.windows.Machine().FileSystem();
      if (!files.Exists(list)) files.AppendLines(list, "");
    });
  });
}

void CoBxRtf::pTitreFenêtre(std::u16string_view title) {
  Store(parts_, u"pTitreFenêtre", &Session::windowTitle, title);
}

void CoBxRtf::pTitreCadre(std::u16string_view title) {
  Store(parts_, u"pTitreCadre", &Session::frameTitle, title);
}

void CoBxRtf::pCouleurFen(std::u16string_view number) {
  Store(parts_, u"pCouleurFen", &Session::colourText, number);
}

void CoBxRtf::pSScléReg(std::u16string_view section) {
  Store(parts_, u"pSScléReg", &Session::settingsKey, section);
}

void CoBxRtf::pAttribut(std::u16string_view access) {
  Store(parts_, u"pAttribut", &Session::access, access);
}

void CoBxRtf::pModelWord(std::u16string_view path) {
  Store(parts_, u"pModelWord", &Session::templatePath, path);
}

void CoBxRtf::pStrOrchm(std::u16string_view noteOrPath) {
  Guarded(parts_, u"pStrOrchm",
          [&](Component& its) { PutNote(its, noteOrPath, NoteKind::AsItLooks); });
}

void CoBxRtf::NoteText(std::u16string_view note) {
  Guarded(parts_, u"NoteText", [&](Component& its) { PutNote(its, note, NoteKind::Text); });
}

void CoBxRtf::NotePath(std::u16string_view path) {
  Guarded(parts_, u"NotePath", [&](Component& its) {
    if (!IsDrivePath(path)) throw RuntimeError(ErrorNumber::PathNotFound);
    PutNote(its, path, NoteKind::Path);
  });
}

std::u16string CoBxRtf::pStrOrchm() {
  return Guarded(parts_, u"pStrOrchm", [](Component& parts) {
    if (Co_Rtf* editor = parts.editor.Loaded()) editor->Unload();
    return parts.session->note;
  });
}

void CoBxRtf::ShowMicroEdit(std::int32_t mode) {
  Guarded(parts_, u"ShowMicroEdit", [&](Component& parts) {
    parts.session->colour = ColourOf(parts.session->colourText);
    const bool wait = mode == 1;
    const Co_Rtf* editor = parts.editor.Loaded();
    if (wait && editor && editor->IsUnloading()) throw RuntimeError(ErrorNumber::InvalidArgument);
    const std::shared_ptr<Session> session = Open(parts);
    if (wait) parts.windows.Machine().Windows().RunUntil([&] { return session->closed; });
  });
}

void CoBxRtf::Closed(std::function<void()> handler) {
  Guarded(parts_, u"Closed", [&](Component& its) { its.closed = std::move(handler); });
}

void CoBxRtf::HostWindow(std::uintptr_t window) {
  Guarded(parts_, u"HostWindow", [&](Component& its) { its.hostWindow = window; });
}

void CoBxRtf::KeepUnsaved() {
  if (Co_Rtf* editor = parts_->editor.Loaded()) editor->Keep();
}

}  // namespace lumenote
