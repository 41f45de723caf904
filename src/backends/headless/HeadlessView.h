// A rich-text box that nobody sees, laid out and used as on a screen.
#pragma once
#include <memory>

#include "backends/headless/FixedLayouter.h"
#include "forms/controls/RichTextBox.h"
#include "view/acts/ViewDrop.h"
#include "view/acts/ViewKeys.h"
#include "view/acts/ViewMouse.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// As large as its box, without frame, margin or scroll bars. What there is to be shown is dropped.
class HeadlessView final : private ViewHost {
 public:
  /// Both outlive the view.
  HeadlessView(RichTextBox& box, FixedLayouter& layouter);

  NoteView& Text() { return text_; }
  ViewKeys& Keys() { return keys_; }
  ViewMouse& Mouse() { return mouse_; }
  ViewDrop& Drop() { return drop_; }
  /// After the box has got another size.
  void Resize();

 private:
  void Act(const std::function<void()>& act) override;
  bool IsLocked() const override { return box_.Locked(); }
  PointerManners Pointer() const override { return {}; }
  void SettleSoon() override {}
  void ShowScrolling() override {}
  void ShowDamage(const Damage&) override {}
  void Changed(const DocumentChange&) override {}
  void SelectionMoved() override {}
  void ShowArrow(bool) override {}
  void ScrollTimer(bool) override {}
  void Drag() override {}
  void OpenMenu(PixelPoint at) override;

  RichTextBox& box_;
  NoteView text_;
  ViewKeys keys_{text_};
  ViewMouse mouse_{text_};
  ViewDrop drop_{text_};
};

/// What the backend has of a rich-text box.
struct HeadlessBox {
  FixedLayouter layouter;
  PieceBreaker breaker{layouter};
  /// While its window is loaded; an act that unloads it keeps the view until it returns.
  std::shared_ptr<HeadlessView> view;

  void Show(RichTextBox& box) { view = std::make_shared<HeadlessView>(box, layouter); }
  void Hide() {
    view->Text().Detach();
    view.reset();
  }
};

}  // namespace lumenote
