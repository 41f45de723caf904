// The window that shows a rich-text surface and receives the user's input.
#pragma once
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "backends/win32/assist/Assistance.h"
#include "backends/win32/text/UniscribeLayouter.h"
#include "backends/win32/toolkit/Window.h"
#include "backends/win32/view/DropTarget.h"
#include "backends/win32/view/ViewPainter.h"
#include "backends/win32/view/input/Composing.h"
#include "backends/win32/view/input/KeyInput.h"
#include "backends/win32/view/input/MouseInput.h"
#include "backends/win32/view/input/SystemCaret.h"
#include "forms/controls/edits/ViewCallbacks.h"
#include "view/acts/ViewDrop.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// Shows a `NoteView` in a window of its own class: translates messages and paints. The surface may
/// be destroyed first, after `Detach`; the window is inert then.
class SurfaceWindow final : public Window, private ViewHost {
 public:
  /// `layouter`, shared with the surface's breaker, must outlive the window.
  SurfaceWindow(HWND parent, DocumentSurface& surface, UniscribeLayouter& layouter,
                ViewCallbacks callbacks);

  ~SurfaceWindow() override;

  void Detach();
  bool IsAttached() const { return text_.IsAttached(); }
  bool IsLocked() const override { return callbacks_.locked && callbacks_.locked(); }
  bool TabLeaves() const override { return callbacks_.tabLeaves && callbacks_.tabLeaves(); }
  NoteView& Text() { return text_; }
  void Settle() { text_.Settle(); }
  std::vector<std::string> Differences() { return text_.Differences(); }
  /// Moves the selection to a point, as a drag does; false if nothing changed.
  bool Drop(PixelPoint at);

 protected:
  LRESULT Receive(const Message& message) override;

 private:
  // ViewHost
  void Act(const std::function<void()>& act) override;
  PointerManners Pointer() const override;
  void SettleSoon() override;
  void ShowScrolling() override { bars_.Sync(Handle()); }
  void ShowDamage(const Damage& damage) override;
  void Changed(const DocumentChange&) override { assistance_.TellChange(); }
  void SelectionMoved() override;
  void DropComposition() override { composing_.Drop(); }
  void ShowPointer(PointerShape shape) override;
  void ScrollTimer(bool on) override;
  void IdleSoon() override;
  void Drag() override { drag_.Run(text_); }
  void OpenLink(std::u16string_view address) override {
    if (callbacks_.link) callbacks_.link(address);
  }
  void OpenMenu(PixelPoint at) override {
    mouse_.Release(MouseButton::Right, MAKELPARAM(std::lround(at.x), std::lround(at.y)));
  }

  /// Nothing for a message that is the system's.
  std::optional<LRESULT> Answer(const Message& message);
  // Each returns whether it has handled the message.
  bool HandleAny(const Message& message);
  bool HandleKeys(const Message& message);
  bool HandleLook(const Message& message);
  bool HandleRest(const Message& message);
  void Tick(UINT_PTR timer);

  void Leave();
  void Paint();
  void Resize();
  void ShowGround();
  void TakeScale();
  void Focus(bool has);
  void ShowCaretPlace();

  UniscribeLayouter& layouter_;
  ViewCallbacks callbacks_;
  NoteView text_;
  ViewBars bars_{text_};
  KeyInput keys_{Handle(), text_, callbacks_};
  MouseInput mouse_{Handle(), text_, bars_, callbacks_};
  Composing composing_{Handle(), text_};
  ViewDrop drop_{text_};
  SystemCaret caret_{Handle()};
  Assistance assistance_{Handle(), text_, callbacks_.name};
  OleScope ole_;
  DragOut drag_;
  ComOwner<DropTarget> target_{new DropTarget(Handle(), text_, drag_)};
  bool focused_ = false;
  PointerShape shape_ = PointerShape::Text;
  bool framed_ = true;
};

}  // namespace lumenote
