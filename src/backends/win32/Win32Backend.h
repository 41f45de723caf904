// The forms on native windows.
#pragma once
#include <memory>
#include <unordered_map>
#include <vector>

#include "backends/win32/Win32Timers.h"
#include "backends/win32/text/UniscribeLayouter.h"
#include "backends/win32/windows/Win32FormPeer.h"
#include "forms/Backend.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

/// Works in any loop of the thread that made it, the host's included: what the keyboard does is
/// decided by the windows, not by the loop. Outlives the windows.
class Win32Backend final : public Backend, private PeerServices {
 public:
  Win32Backend();

  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) override;
  /// A request to quit closes the windows, and is passed on to the loop around when the wait ends.
  void RunUntil(const std::function<bool()>& done) override;
  bool IsTopmost(const Form& form) override;
  void Arm(Timer& timer) override { timers_.Arm(timer); }
  void Disarm(Timer& timer) override { timers_.Disarm(timer); }

  WindowRegistry& Windows() override { return windows_; }
  /// Null unless the form has a window.
  Win32FormPeer* PeerOf(const Form& form) const;
  /// Closes the windows that are still there as the user would, the latest first; what refuses goes
  /// all the same.
  void CloseForms();

 private:
  struct SurfaceLayout {
    UniscribeLayouter layouter;
    PieceBreaker breaker{layouter};
  };

  ControlFonts& Fonts() override { return fonts_; }
  UniscribeLayouter& LayouterOf(const Control& box) override { return layouts_.at(&box)->layouter; }
  void Restack() override;
  void Gone(Form& form) override;
  /// The window that a box asked for by `over` belongs to; null for none.
  HWND DialogParent(const Form* over) const;

  WindowRegistry windows_;
  ControlFonts fonts_;
  Win32Timers timers_;
  // A box that is made where an earlier one was takes its place here.
  std::unordered_map<const Control*, std::unique_ptr<SurfaceLayout>> layouts_;
  std::vector<std::pair<Form*, Win32FormPeer*>> forms_;  // in the order of realising
};

}  // namespace lumenote
