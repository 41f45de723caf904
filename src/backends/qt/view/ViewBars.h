// The scroll bars of a view.
#pragma once

namespace lumenote {

class RichTextView;

/// They follow the pane. Steps go by what is on screen, exactly, where the bar's own scale may be
/// an estimate.
class ViewBars {
 public:
  explicit ViewBars(RichTextView& view);

  /// Which bars a box of this height can have.
  void Choose(int height);
  /// After the pane has changed.
  void Sync();
  /// After the user has moved a bar.
  void Follow(int dx, int dy);
  /// As turning a wheel does, in pixels.
  void Turn(double x, double y);

 private:
  void SyncVertical();
  void SyncHorizontal();
  void Step(int action);

  RichTextView& view_;
  bool syncing_ = false;  // the bars follow the pane, not the other way round
};

}  // namespace lumenote
