// The menus of a form: its bar, its popups, and what the user chooses of them.
#pragma once
#include <memory>

#include "backends/win32/windows/menus/MenuBarWindow.h"
#include "backends/win32/windows/menus/MenuTree.h"
#include "forms/Form.h"

namespace lumenote {

/// While a list is open the form may be closed, and this be destroyed.
class FormMenus {
 public:
  /// `window` is the form's own.
  FormMenus(Form& form, std::shared_ptr<Window> window);
  ~FormMenus();
  FormMenus(const FormMenus&) = delete;
  FormMenus& operator=(const FormMenus&) = delete;

  MenuBarWindow& Bar() const { return *bar_; }
  const MenuTree& Tree() const { return tree_; }

  void Update(const Menu& menu);
  /// Opens a menu of the bar below its caption, or chooses it if it has no entries.
  void Open(Menu& menu);
  /// Shows the menu at a point of the screen; its opening event has been raised already.
  void PopUp(Menu& menu, POINT at);
  /// Gives the keyboard to the first menu of the bar.
  void TakeKeyboard();

  /// What the window is told of its menus.
  void Opening(HMENU list) const;
  void Chosen(UINT command) const;

 private:
  /// Returns the menu of the bar that the user went on to; null for none.
  Menu* ShowList(Menu& menu);
  /// Whether a message that an open list of the bar gets leads elsewhere.
  bool Leaves(const Menu& open, const MSG& message, Menu*& next);
  UINT Track(HMENU list, POINT at, const RECT* beside);

  Form& form_;
  std::shared_ptr<Window> window_;
  MenuTree tree_;
  std::shared_ptr<MenuBarWindow> bar_;
  POINT pointer_ = {};              // on the screen, while a list of the bar is open
  bool tracks_ = false;             // a list is open
  const Menu* poppedUp_ = nullptr;  // its opening event has been raised already
};

}  // namespace lumenote
