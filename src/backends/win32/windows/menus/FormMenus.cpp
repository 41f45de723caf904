#include "backends/win32/windows/menus/FormMenus.h"

#include "backends/win32/toolkit/input/MousePoint.h"
#include "backends/win32/windows/keys/KeyNavigation.h"
#include "backends/win32/windows/menus/MenuFilter.h"

namespace lumenote {

FormMenus::FormMenus(Form& form, std::shared_ptr<Window> window)
    : form_(form),
      window_(std::move(window)),
      tree_(form.Menus()),
      bar_(std::make_shared<MenuBarWindow>(window_->Handle(), form)) {
  bar_->chosen = [this](Menu& menu) { Open(menu); };
}

FormMenus::~FormMenus() {
  if (tracks_) EndMenu();
  bar_->Detach();
}

void FormMenus::Update(const Menu& menu) {
  tree_.Update(menu);
  bar_->Show();
}

void FormMenus::Opening(HMENU list) const {
  if (Menu* menu = tree_.WithList(list); menu && menu != poppedUp_) menu->UserOpen();
}

void FormMenus::Chosen(UINT command) const {
  if (Menu* menu = tree_.WithCommand(command)) menu->UserClick();
}

void FormMenus::TakeKeyboard() {
  if (Menu* first = NextMenu(form_, nullptr, true)) bar_->TakeKeyboard(*first);
}

// A list of the bar leads to its neighbours.
void FormMenus::Open(Menu& first) {
  if (!first.Enabled()) return;
  if (!tree_.ListOf(first)) return first.UserClick();
  const std::shared_ptr<Window> kept = window_;
  Menu* menu = &first;
  while (menu && tree_.ListOf(*menu)) {
    menu = ShowList(*menu);
    if (!kept->HasListener()) return;
  }
  if (menu)
    bar_->TakeKeyboard(*menu);
  else
    form_.LeaveMenuBar();
}

Menu* FormMenus::ShowList(Menu& menu) {
  const RECT caption = bar_->PlaceOf(menu);
  const std::shared_ptr<Window> kept = window_;
  const std::shared_ptr<MenuBarWindow> bar = bar_;
  Menu* next = nullptr;
  UINT command = 0;
  bar->Light(&menu);
  GetCursorPos(&pointer_);
  {
    const MenuFilter filter(
        [&](const MSG& message) { return kept->HasListener() && Leaves(menu, message, next); });
    command = Track(tree_.ListOf(menu), {caption.left, caption.bottom}, &caption);
  }
  bar->Light(nullptr);
  if (command && kept->HasListener()) Chosen(command);
  return command ? nullptr : next;
}

bool FormMenus::Leaves(const Menu& open, const MSG& message, Menu*& next) {
  const bool forward = message.wParam == VK_RIGHT;
  switch (message.message) {
    case WM_KEYDOWN:
      if ((!forward && message.wParam != VK_LEFT) || !ArrowLeaves(tree_.ListOf(open), forward))
        return false;
      next = NextMenu(form_, &open, forward);
      break;
    case WM_MOUSEMOVE: {
      if (!HasMoved(pointer_, message.pt)) return false;
      Menu* const under = bar_->MenuAt(message.pt);
      if (!under || under == &open || !under->Enabled() || !tree_.ListOf(*under)) return false;
      next = under;
      break;
    }
    case WM_LBUTTONDOWN:
      if (bar_->MenuAt(message.pt) != &open) return false;
      break;
    default:
      return false;
  }
  EndMenu();
  return true;
}

void FormMenus::PopUp(Menu& menu, POINT at) {
  const HMENU list = tree_.ListOf(menu);
  if (!list) return;
  const std::shared_ptr<Window> kept = window_;
  poppedUp_ = &menu;
  const UINT command = Track(list, at, nullptr);
  if (!kept->HasListener()) return;
  poppedUp_ = nullptr;
  if (command) Chosen(command);
}

UINT FormMenus::Track(HMENU list, POINT at, const RECT* beside) {
  TPMPARAMS around = {sizeof around, beside ? *beside : RECT{}};
  const std::shared_ptr<Window> kept = window_;
  tracks_ = true;
  const BOOL command = TrackPopupMenuEx(list, TPM_RETURNCMD | TPM_VERTICAL | TPM_RIGHTBUTTON, at.x,
                                        at.y, kept->Handle(), beside ? &around : nullptr);
  if (kept->HasListener()) tracks_ = false;
  return static_cast<UINT>(command);
}

}  // namespace lumenote
