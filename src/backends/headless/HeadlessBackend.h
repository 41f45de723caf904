// A backend without a window system or a user.
#pragma once
#include <memory>

#include "backends/headless/HeadlessPeer.h"
#include "forms/Backend.h"
#include "forms/ManualClock.h"

namespace lumenote {

/// Lays surfaces out with fixed advances. Answers message boxes at once with their default button;
/// dismisses popup menus. Timers tick only during `Advance`. Must outlive the windows.
class HeadlessBackend : public Backend {
 public:
  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  /// Cancels at once.
  std::optional<FontChoice> ChooseFont(const FontChoice&, Form*) override { return {}; }
  /// No events arrive while the caller waits: raises InvalidArgument (5) unless `done` already
  /// returns true.
  void RunUntil(const std::function<bool()>& done) override;
  void Arm(Timer& timer) override { clock_.Arm(timer); }
  void Disarm(Timer& timer) override { clock_.Disarm(timer); }

  /// The view of a box; null unless its window is loaded.
  std::shared_ptr<HeadlessView> ViewOf(const Control& box) const;

  void Advance(int milliseconds) { clock_.Advance(milliseconds); }

 private:
  ManualClock clock_;
  HeadlessBoxes boxes_;
};

}  // namespace lumenote
