// The public control: a host sets its properties, opens the editor, reads the note back.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"
#include "lumenote/RuntimeError.h"

namespace lumenote {

struct Component;

/// Hosts speak drive-letter paths on every system; `ToDrivePath` of the platform makes one of a
/// native path. Set the descriptive properties, then `pStrOrchm`, call `ShowMicroEdit(1)`, read
/// `pStrOrchm`.
///
/// Errors are `RuntimeError` and nothing else; `Member()` names the member that they are about.
/// Every member belongs to the thread that made the control: on another one it raises
/// InvalidArgument (5) at once and does nothing. An exception that is no `RuntimeError` becomes
/// Internal (51).
///
/// Events of the host run while the editor waits or asks, and may use every member, this control's
/// destructor included; the members say what then happens.
class CoBxRtf {
 public:
  /// `platform` outlives the control and the calls of its members that have not returned.
  explicit CoBxRtf(Platform& platform);
  /// Closes the editor as the user would if it is still open; a note in a string that was edited
  /// becomes a rescue copy, since nobody can read it any more. On the control's thread only.
  ~CoBxRtf();
  CoBxRtf(const CoBxRtf&) = delete;
  CoBxRtf& operator=(const CoBxRtf&) = delete;

  /// Name under which the paragraph styles are kept.
  void pNomAppli(std::u16string_view name);
  /// The host program's path; the correction list lies beside it and is created when missing.
  void pChmAppli(std::u16string_view path);
  void pTitreFenêtre(std::u16string_view title);
  void pTitreCadre(std::u16string_view title);
  /// Background of the window, a decimal number 0xBBGGRR as text.
  void pCouleurFen(std::u16string_view number);
  /// Section under which the window's place is kept.
  void pSScléReg(std::u16string_view section);
  /// "readonly" or "lectureseule", in any letter case, opens the note read-only.
  void pAttribut(std::u16string_view access);
  /// Template handed to an external word processor.
  void pModelWord(std::u16string_view path);

  /// The note itself, or the path of its file (a drive-letter path longer than 7 characters). One
  /// written while the editor is open waits for the next opening and is what reading gives.
  void pStrOrchm(std::u16string_view noteOrPath);
  /// Closes the editor if it is open, which may ask the user whether to save, and returns the note
  /// or path; empty after the user has deleted the document. While the editor asks its closing
  /// question already, returns what is stored so far.
  std::u16string pStrOrchm();

  /// Opens the editor; one that is open gets the titles and the colour, and comes to the front.
  /// With 1 it returns when that editor has closed, the host's events flowing meanwhile; otherwise
  /// at once. Raises, for the member pCouleurFen, TypeMismatch (13) or Overflow (6) for a colour
  /// text that is no 32-bit number. With 1, inside the closing question of the editor, raises
  /// InvalidArgument (5): that wait could not end. What a platform without windows raises comes out
  /// here, too.
  void ShowMicroEdit(std::int32_t mode = 0);

  // Comfort for hosts in C++. Without a call nothing changes in what the members above do.

  /// The note itself, even where it looks like a path ("T:\\ 12 m, sous chênes"). As `pStrOrchm`
  /// otherwise.
  void NoteText(std::u16string_view note);
  /// The path of the note's file, as `pStrOrchm` takes it. Raises PathNotFound (76) for a text that
  /// is no such path.
  void NotePath(std::u16string_view path);
  /// `handler` is called each time an editor of this control has closed, whoever closed it, before
  /// the wait of `ShowMicroEdit(1)` returns: of two notes open at once the first one closed is told
  /// first, though its wait ends last. The note can be read then; every member may be used, the
  /// destructor included. It must not throw. Empty for none; the control's own end tells nothing.
  void Closed(std::function<void()> handler);
  /// The host's window above which the editors that are opened from now on stay, as the window
  /// system numbers it: a `QWidget::winId()`, an X window, an HWND. 0, as at first, for none.
  void HostWindow(std::uintptr_t window);

  /// Brings the recovery copy of an edited note up to date at once, for a program that has to end
  /// now: by a signal, the session's end, a lost display. Nothing is asked and the editor stays as
  /// it is; the next start makes a rescue copy of the note.
  void KeepUnsaved();

  /// The parts behind the control, for tests and scripts.
  Component& Parts() { return *parts_; }

 private:
  std::shared_ptr<Component> parts_;
};

}  // namespace lumenote
