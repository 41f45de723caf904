#include "backends/win32/windows/FormStacking.h"

namespace lumenote {

void FormStacking::Own() {
  ChooseBoxes();
  owner_ = OwnerWindow();
  Join(true);
}

// A dialog goes with its owner.
void FormStacking::ChooseBoxes() const {
  constexpr LONG_PTR kBoxes = WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
  const bool dialog = form_.OwnerWindow() || form_.IsModal() || form_.IsFixedSize();
  const LONG_PTR style = GetWindowLongPtrW(window_.Handle(), GWL_STYLE);
  SetWindowLongPtrW(window_.Handle(), GWL_STYLE, dialog ? style & ~kBoxes : style | kBoxes);
}

// A modal window without an owner stays above the window it was opened from.
HWND FormStacking::OwnerWindow() const {
  const Form* owner = form_.OwnerWindow();
  if (!owner && form_.IsModal()) owner = form_.Windows().Active();
  if (owner && owner != &form_)
    if (const Window* window = windows_.Find(*owner)) return window->Handle();
  const HWND host = reinterpret_cast<HWND>(form_.HostWindow());
  return IsWindow(host) ? host : nullptr;
}

bool FormStacking::StaysOnTop() const {
  if (form_.OnTop()) return true;
  return owner_ && (GetWindowLongPtrW(owner_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

void FormStacking::ShowOnTop() const {
  const UINT show = form_.Visible() ? SWP_SHOWWINDOW : 0;
  SetWindowPos(window_.Handle(), StaysOnTop() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | show);
}

void FormStacking::Join(bool owner) const {
  SetWindowLongPtrW(window_.Handle(), GWLP_HWNDPARENT,
                    reinterpret_cast<LONG_PTR>(owner ? owner_ : nullptr));
}

}  // namespace lumenote
