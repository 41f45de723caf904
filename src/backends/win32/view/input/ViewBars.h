// The scroll bars of a surface's window.
#pragma once
#include "backends/win32/system/System.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// The bars follow the pane. Steps move exactly by what is on screen, even if the bar's scale is an
/// estimate.
class ViewBars {
 public:
  explicit ViewBars(NoteView& view) : view_(view) {}

  /// Chooses the bars for a window of this height.
  void Choose(HWND window, int height);
  /// Updates the bars from the pane.
  void Sync(HWND window) const;
  /// The user has moved a bar, by a WM_VSCROLL or WM_HSCROLL.
  void Down(HWND window, int action);
  void Across(HWND window, int action);
  /// A WM_MOUSEWHEEL; notches away from the user are positive.
  void Turn(double notches);
  void TurnAcross(double notches);

 private:
  void ScrollRight(double pixels);

  NoteView& view_;
  bool barless_ = false;
};

}  // namespace lumenote
