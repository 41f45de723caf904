// The public control: a host sets its properties, opens the editor and reads the note back.
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

/// Hosts use drive-letter paths on every system; the platform's `ToDrivePath` converts a native
/// path. Set the descriptive properties, then `pStrOrchm`, call `ShowMicroEdit(1)` and read
/// `pStrOrchm`. `pCouleurFen` is required; what else is not set is empty. Texts are UTF-16.
///
/// Members raise `RuntimeError` and nothing else; its `Member()` names the member concerned. Any
/// other exception becomes Internal (51). A control belongs to the thread that created it: on
/// another thread every member raises InvalidArgument (5) at once and does nothing.
///
/// While the editor waits or asks a question, the host's event handlers run and may call any
/// member, even destroy this control; each member says what happens then.
class CoBxRtf {
 public:
  /// `platform` must outlive the control and every call on it that has not returned yet.
  explicit CoBxRtf(Platform& platform);
  /// Keeps the platform alive for that long, for hosts that cannot know when the last call returns.
  explicit CoBxRtf(const std::shared_ptr<Platform>& platform);
  /// Closes an open editor as the user would. An edited string note becomes a rescue copy, since
  /// nobody can read it any more. Call on the control's thread only.
  ~CoBxRtf();
  CoBxRtf(const CoBxRtf&) = delete;
  CoBxRtf& operator=(const CoBxRtf&) = delete;

  /// The host's name, under which the user's paragraph styles are stored. Empty: the styles of all
  /// hosts without a name.
  void pNomAppli(std::u16string_view name);
  /// The host program's drive-letter path ("C:\\Herbier\\herbier.exe"; need not exist). Required to
  /// learn corrections and clean up scanned text: their list "ListCorr.txt" is stored beside it and
  /// created when missing.
  void pChmAppli(std::u16string_view path);
  /// The caption of the window.
  void pTitreFenêtre(std::u16string_view title);
  /// The caption of the frame around the note.
  void pTitreCadre(std::u16string_view title);
  /// Background of the window: 0xBBGGRR as a decimal number in text ("14737632" is a light grey),
  /// "-1" for the desktop's own. Required: an empty text makes `ShowMicroEdit` raise TypeMismatch
  /// (13).
  void pCouleurFen(std::u16string_view number);
  /// The section of the user's settings under which the window's place and size are stored. Empty:
  /// one for all hosts that set none.
  void pSScléReg(std::u16string_view section);
  /// "readonly" or "lectureseule", in any letter case, makes a note in a string read-only: its user
  /// can write, but is told on closing that the changes are given up; they come back to the host
  /// all the same. A note in a file is read-only as its file is, whatever is set here.
  void pAttribut(std::u16string_view access);
  /// The drive-letter path of the template passed to an external word processor; empty for none.
  void pModelWord(std::u16string_view path);

  /// The note itself, or the path of its file (a drive-letter path longer than 7 characters). A
  /// value written while the editor is open is kept for the next opening; reading returns it.
  void pStrOrchm(std::u16string_view noteOrPath);
  /// Closes the editor if it is open, which may ask the user whether to save, and returns the note
  /// or its path; empty after the user has deleted the document. Called while the editor is already
  /// asking its closing question, it returns what is stored so far.
  std::u16string pStrOrchm();

  /// Opens the editor, or gives an open one the new titles and colour and brings it to the front.
  /// Mode 1 returns when that editor has closed, dispatching the host's events meanwhile; any other
  /// mode returns at once. A colour text that is not a 32-bit number raises TypeMismatch (13) or
  /// Overflow (6) for the member pCouleurFen. Mode 1 inside the editor's closing question raises
  /// InvalidArgument (5), because that wait could never end. Errors of a platform without windows
  /// come out here too.
  void ShowMicroEdit(std::int32_t mode = 0);

  // Additions for C++ hosts; the members above behave the same whether or not these are used.

  /// Like `pStrOrchm`, but always the note itself, even if it looks like a path ("T:\\ 12 m, sous
  /// chênes").
  void NoteText(std::u16string_view note);
  /// Like `pStrOrchm`, but always a path. Raises PathNotFound (76) for a text that is not one.
  void NotePath(std::u16string_view path);
  /// Sets the handler called each time an editor of this control has closed, for whatever reason,
  /// before `ShowMicroEdit(1)` returns. With two notes open the handler runs in the order in which
  /// they close, although the nested waits return in reverse. The handler can read the note and
  /// call any member, even destroy the control; it must not throw. Empty removes it. Destroying the
  /// control does not call it.
  void Closed(std::function<void()> handler);
  /// The host's native window (`QWidget::winId()`, an X window, an HWND) that editors opened from
  /// now on stay above; 0, the default, for none.
  void HostWindow(std::uintptr_t window);

  /// Brings the recovery copy of an edited note up to date at once, for a program that must end
  /// now: on a signal, at the session's end, when the display is lost. It asks nothing and leaves
  /// the editor as it is; the next start turns the copy into a rescue copy.
  void KeepUnsaved();

  /// The internals, for tests and scripts.
  Component& Parts() { return *parts_; }

 private:
  std::shared_ptr<Component> parts_;
};

}  // namespace lumenote
