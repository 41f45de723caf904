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

/// Each dialog is made at its first use.
class Dialogs {
 public:
  /// `window` is the editor's own, of which the dialogs are a part; both outlive this object.
  Dialogs(EditorWindow& editor, Form& window);

  void UnloadAll();

  /// Opens the paragraph dialog, or closes it.
  void ActFenFormat();
  /// Styles belong to that dialog, which is loaded for them but not shown.
  void ApplyStyFromName(std::u16string_view section);
  void Trouver();
  /// The dialog's own button goes on with the search; this only reads its options, for which the
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
