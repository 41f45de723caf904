// The dialogs of an editor window.
#pragma once
#include <string_view>

#include "find/Co_Trouver.h"
#include "format/Co_Paragraph.h"
#include "forms/Instance.h"
#include "ocr/Co_Apprendre.h"
#include "symbols/Co_Symbols.h"

namespace lumenote {

class EditorWindow;

/// Each dialog is created on first use.
class Dialogs {
 public:
  /// `window` is the editor's form, which holds the dialogs. Both must outlive this object.
  Dialogs(EditorWindow& editor, Form& window);

  void UnloadAll();

  /// Opens or closes the paragraph dialog.
  void ActFenFormat();
  /// That dialog applies styles, so it is loaded for this, but not shown.
  void ApplyStyFromName(std::u16string_view section);
  void Trouver();
  /// Searches on as the open dialog's button does; without one, opens it.
  void TrouverSuivant();
  /// Searching on is done by the dialog's own button; this only reads the options, for which the
  /// dialog is loaded.
  void Suivant();
  void Symboles();
  void Apprendre();

 private:
  EditorWindow& editor_;
  Form& window_;
  Instance<Co_Paragraph> paragraph_;
  Instance<Co_Trouver> find_;
  Instance<Co_Symbols> symbols_;
  Instance<Co_Apprendre> learn_;
};

}  // namespace lumenote
