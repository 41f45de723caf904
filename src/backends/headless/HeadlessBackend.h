// A backend without a window system: windows are their state, and nobody sits before them.
#pragma once
#include <memory>

#include "backends/headless/HeadlessPeer.h"
#include "forms/Backend.h"
#include "forms/ManualClock.h"

namespace lumenote {

/// Surfaces are laid out with fixed advances. Message boxes are answered with their default button
/// at once; popup menus are dismissed. Timers tick only while `Advance` is called. Outlives the
/// windows.
class HeadlessBackend : public Backend {
 public:
  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  /// Cancelled at once.
  std::optional<FontChoice> ChooseFont(const FontChoice&, Form*) override { return {}; }
  /// No event can come while the caller waits: raises InvalidArgument (5) unless `done` holds
  /// already.
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
