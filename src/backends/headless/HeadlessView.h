// An invisible rich-text box, laid out and operated as if on screen.
#pragma once
#include <memory>
#include <utility>

#include "backends/headless/FixedLayouter.h"
#include "forms/controls/edits/RichTextBox.h"
#include "view/acts/ViewDrop.h"
#include "view/acts/ViewKeys.h"
#include "view/acts/ViewMouse.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// As large as its box, without frame, margin or scroll bars. Ignores what it is told to paint.
class HeadlessView final : private ViewHost {
 public:
  /// Both must outlive the view.
  HeadlessView(RichTextBox& box, FixedLayouter& layouter);

  NoteView& Text() { return text_; }
  ViewKeys& Keys() { return keys_; }
  ViewMouse& Mouse() { return mouse_; }
  ViewDrop& Drop() { return drop_; }
  /// Call after the box has been resized.
  void Resize();

 private:
  void Act(const std::function<void()>& act) override;
  bool IsLocked() const override { return box_.Locked(); }
  bool TabLeaves() const override { return box_.TabLeaves(); }
  PointerManners Pointer() const override { return {}; }
  void SettleSoon() override {}
  void IdleSoon() override {}
  void ShowScrolling() override {}
  void ShowDamage(const Damage&) override {}
  void Changed(const DocumentChange&) override {}
  void SelectionMoved() override {}
  void DropComposition() override {}
  void ShowPointer(PointerShape) override {}
  void ScrollTimer(bool) override {}
  void Drag() override {}
  void OpenLink(std::u16string_view address) override { box_.UserOpenLink(address); }
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
    if (const auto hidden = std::exchange(view, nullptr)) hidden->Text().Detach();
  }
};

}  // namespace lumenote
