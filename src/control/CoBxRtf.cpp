#include "control/CoBxRtf.h"

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "control/Component.h"
#include "editor/Secours.h"
#include "editor/SessionLife.h"
#include "forms/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace lumenote {

namespace {

bool IsReadOnlyAccess(std::u16string_view access) {
  const std::u16string lower = Lower(access);
  return lower == u"readonly" || lower == u"lectureseule";
}

}  // namespace

CoBxRtf::CoBxRtf(Platform& platform) : parts_(std::make_unique<Component>(platform)) {}

CoBxRtf::~CoBxRtf() {
  if (Co_Rtf* editor = parts_->editor.Loaded()) editor->Unload();
  GarderRetours(parts_->windows.Machine(), parts_->session.workLeft);
}

void CoBxRtf::pNomAppli(std::u16string_view name) { parts_->session.applicationName = name; }

void CoBxRtf::pChmAppli(std::u16string_view path) {
  Session& session = parts_->session;
  session.listCorrPath = FoldBackslashes(ParentFolder(path) + u"\\ListCorr.txt");
  IgnoringErrors([&] {
    Files& files = parts_->windows.Machine().FileSystem();
    if (!files.Exists(session.listCorrPath)) files.AppendLines(session.listCorrPath, "");
  });
}

void CoBxRtf::pTitreFenêtre(std::u16string_view title) { parts_->session.windowTitle = title; }

void CoBxRtf::pTitreCadre(std::u16string_view title) { parts_->session.frameTitle = title; }

void CoBxRtf::pCouleurFen(std::u16string_view number) { parts_->session.colourText = number; }

void CoBxRtf::pSScléReg(std::u16string_view section) { parts_->session.settingsKey = section; }

void CoBxRtf::pAttribut(std::u16string_view access) { parts_->session.access = access; }

void CoBxRtf::pModelWord(std::u16string_view path) { parts_->session.templatePath = path; }

void CoBxRtf::pStrOrchm(std::u16string_view noteOrPath) {
  Session& session = parts_->session;
  if (!parts_->editor.Loaded()) {
    PrendreNote(session, noteOrPath);
    return;
  }
  session.note = noteOrPath;
  session.noteReplaced = true;
}

std::u16string CoBxRtf::pStrOrchm() {
  if (Co_Rtf* editor = parts_->editor.Loaded()) editor->Unload();
  return parts_->session.note;
}

void CoBxRtf::ShowMicroEdit(std::int32_t mode) {
  Session& session = parts_->session;
  session.colour = ParseInt32(session.colourText);
  const bool open = parts_->editor.Loaded() != nullptr;
  Co_Rtf& editor = parts_->editor.Get();
  editor.Fr_Notes.Caption(session.frameTitle);
  if (!open) session.readOnly = IsReadOnlyAccess(session.access);
  if (TrimBlanks(session.windowTitle).empty()) session.windowTitle.clear();
  editor.Caption(session.windowTitle);
  editor.Load();
  editor.BackColor(session.colour);
  session.closed = false;
  editor.Show();
  if (mode == 1) parts_->windows.Machine().Windows().RunUntil([&] { return session.closed; });
}

}  // namespace lumenote
