#include "ocr/OcrCommands.h"

#include <string>

#include "lumenote/Platform.h"
#include "ocr/Cleanup.h"
#include "platform/Clipboard.h"
#include "platform/Files.h"
#include "platform/Processes.h"
#include "platform/ProgramCommand.h"
#include "session/EditorWindow.h"
#include "session/Session.h"

namespace lumenote {

void NettoyerNote(EditorWindow& editor) {
  if (editor.Values().format == u"txt") {
    editor.AskOver({.text = u"Pour code RTF uniquement", .icon = MessageBox::Icon::Information});
    return;
  }
  editor.FocusDocument();
  NettoyerTexte(editor.Document(), editor.Services().FileSystem(), editor.Values().listCorrPath);
}

void ApprendreCorrection(EditorWindow& editor, const std::function<void()>& showModal) {
  editor.Services().SystemClipboard().Clear();
  if (editor.Document().SelLength() < 1) {
    editor.AskOver({.text = u"Faire une sélection"});
    return;
  }
  editor.FocusDocument();
  editor.Document().Copy();
  editor.SuspendreDessus();
  showModal();
  editor.RetablirDessus();
}

void EditerListCorr(EditorWindow& editor, Processes& processes, std::u16string_view program) {
  const Files& files = editor.Services().FileSystem();
  const std::u16string& list = editor.Values().listCorrPath;
  if (!files.Exists(program) || !files.Exists(list)) {
    editor.AskOver({.text = u"Edition impossible\r\nEditeur ou ListCorr introuvable",
                    .icon = MessageBox::Icon::Critical});
    return;
  }
  editor.SuspendreDessus();
  processes.Start(QuotedProgram(program) + u" " + Quoted(list));
}

}  // namespace lumenote
