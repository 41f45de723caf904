// What dialogs and procedures need of the editor window.
#pragma once
#include <optional>

#include "forms/Form.h"
#include "forms/values/FontChoice.h"
#include "forms/values/Geometry.h"
#include "forms/values/MessageBox.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

class Platform;
struct Session;

/// Why a rescue copy is made; shown first in the box that announces it.
enum class Cause {
  EnregistrementImpossible,
  FichierModifie,
  NoteRetrouvee,
  FichierTemporaire,
};

class EditorWindow {
 public:
  virtual ~EditorWindow() = default;
  /// The surface of the note.
  virtual RichTextSurface& Document() = 0;
  virtual Session& Values() = 0;
  virtual Platform& Services() = 0;

  /// Suspends the always-on-top state before a box, dialog or program appears.
  virtual void SuspendreDessus() = 0;
  /// Restores it: sets flag and check mark, but the native state only if the flag was still set.
  virtual void RetablirDessus() = 0;
  virtual MessageBox::Answer Ask(const MessageBox& box) = 0;
  /// A message box between `SuspendreDessus` and `RetablirDessus`, owned by `dialog` or, if null,
  /// by the editor.
  MessageBox::Answer AskOver(const MessageBox& box, Form* dialog = nullptr) {
    SuspendreDessus();
    const MessageBox::Answer answer = dialog ? dialog->Ask(box) : Ask(box);
    RetablirDessus();
    return answer;
  }

  /// The desktop's font dialog between the same two and with the same owner; empty if cancelled.
  virtual std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* dialog) = 0;

  /// The window's bounds on the screen, in twips.
  virtual Rect WindowBounds() const = 0;
  /// What frames the note's selection on the screen, in twips; empty if nothing selected is seen.
  virtual std::optional<Rect> SelectionBounds() = 0;
  /// Width of the note's box, in twips.
  virtual float DocumentWidth() const = 0;
  /// Focuses the note.
  virtual void FocusDocument() = 0;
  /// Enables the menu entry that continues a search.
  virtual void EnableSuivant(bool on) = 0;
};

}  // namespace lumenote
