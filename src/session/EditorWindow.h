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

/// Why a rescue copy is made; the box that names it begins with the cause.
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

  /// Drops the always-on-top state before a box, a dialog or a program comes up.
  virtual void SuspendreDessus() = 0;
  /// Its counterpart: sets flag and check mark, the state itself only when the flag still stands.
  virtual void RetablirDessus() = 0;
  virtual MessageBox::Answer Ask(const MessageBox& box) = 0;
  /// A message box between `SuspendreDessus` and `RetablirDessus`, of the dialog that asks, or of
  /// the editor.
  MessageBox::Answer AskOver(const MessageBox& box, Form* dialog = nullptr) {
    SuspendreDessus();
    const MessageBox::Answer answer = dialog ? dialog->Ask(box) : Ask(box);
    RetablirDessus();
    return answer;
  }

  /// The desktop's font dialog between the same two, of the same window; empty when cancelled.
  virtual std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* dialog) = 0;

  /// The window's place on the screen, in twips.
  virtual Rect WindowPlace() const = 0;
  /// Width of the note's box, in twips.
  virtual float DocumentWidth() const = 0;
  /// Gives the note the keyboard.
  virtual void FocusDocument() = 0;
  /// Whether the menu entry that goes on with a search can be chosen.
  virtual void EnableSuivant(bool on) = 0;
};

}  // namespace lumenote
