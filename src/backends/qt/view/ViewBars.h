// The scroll bars of a view.
#pragma once

namespace lumenote {

class RichTextView;

/// The bars follow the pane. Steps move exactly by what is on screen, even if the bar's scale is an
/// estimate.
class ViewBars {
 public:
  explicit ViewBars(RichTextView& view);

  /// Chooses the bars for a box of this height.
  void Choose(int height);
  /// Updates the bars from the pane.
  void Sync();
  /// Updates the pane after the user has moved a bar.
  void Follow(int dx, int dy);
  /// Scrolls like a mouse wheel, in pixels.
  void Turn(double x, double y);

 private:
  void SyncVertical();
  void SyncHorizontal();
  void Step(int action);

  RichTextView& view_;
  bool syncing_ = false;  // updating the bars from the pane
};

}  // namespace lumenote
