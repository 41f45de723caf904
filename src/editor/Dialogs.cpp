#include "editor/Dialogs.h"

#include "base/RuntimeError.h"
#include "ocr/OcrCommands.h"
#include "session/EditorWindow.h"

namespace lumenote {

Dialogs::Dialogs(EditorWindow& editor, Form& window)
    : editor_(editor),
      window_(window),
      paragraph_([this] { return std::make_unique<Co_Paragraph>(window_.Windows(), editor_); },
                 &window),
      find_([this] { return std::make_unique<Co_Trouver>(window_.Windows(), editor_); }, &window),
      symbols_([this] { return std::make_unique<Co_Symbols>(window_.Windows(), editor_); },
               &window),
      learn_([this] { return std::make_unique<Co_Apprendre>(window_.Windows(), editor_); },
             &window) {}

void Dialogs::UnloadAll() {
  if (Co_Paragraph* dialog = paragraph_.Loaded()) dialog->Unload();
  if (Co_Trouver* dialog = find_.Loaded()) dialog->Unload();
  if (Co_Symbols* dialog = symbols_.Loaded()) dialog->Unload();
  if (Co_Apprendre* dialog = learn_.Loaded()) dialog->Unload();
}

void Dialogs::ActFenFormat() {
  if (Co_Paragraph* shown = paragraph_.Loaded(); shown && shown->Visible()) {
    shown->Unload();
    return;
  }
  IgnoringErrors([this] {
    Co_Paragraph& dialog = paragraph_.Get();
    dialog.SetPosFenPara();
    dialog.Show(&window_);
    dialog.RafraichirFenFmt();
  });
}

void Dialogs::ApplyStyFromName(std::u16string_view section) {
  Co_Paragraph& dialog = paragraph_.Get();
  dialog.Load();
  dialog.ApplyStyFromName(section);
}

void Dialogs::Trouver() {
  editor_.SuspendreDessus();
  find_.Get().Show(&window_);
}

void Dialogs::TrouverSuivant() {
  if (Co_Trouver* dialog = find_.Loaded(); dialog && dialog->Visible())
    dialog->cmdFind.UserClick();
  else
    Trouver();
}

void Dialogs::Suivant() {
  try {
    Co_Trouver& dialog = find_.Get();
    dialog.Load();
    dialog.Options();
  } catch (const RuntimeError& error) {
    editor_.AskOver({.text = error.Description()});
  }
}

void Dialogs::Symboles() {
  editor_.SuspendreDessus();
  symbols_.Get().ShowModal();
  editor_.RetablirDessus();
}

void Dialogs::Apprendre() {
  ApprendreCorrection(editor_, [this] { learn_.Get().ShowModal(); });
}

}  // namespace lumenote
