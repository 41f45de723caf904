// A low menu bar: the system's own is higher than the windows' design allows.
#pragma once
#include <functional>
#include <vector>

#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/drawing/Units.h"
#include "forms/Form.h"
#include "forms/Menu.h"

namespace lumenote {

/// Shows the captions of the form's visible menus; the spaces in them are the only separation. With
/// the keyboard it has one of them lit.
class MenuBarWindow final : public PaintedWindow {
 public:
  MenuBarWindow(HWND parent, Form& form);

  /// Takes the menus from the form anew.
  void Show();
  /// The form is going; the window may stay.
  void Detach();

  /// Null for none. Assistive programs take the bar for the menu that is lit.
  void Light(Menu* menu);
  void TakeKeyboard(Menu& lit);
  /// The menu at a point of the screen; null for none.
  Menu* MenuAt(POINT at) const;
  /// On the screen.
  RECT PlaceOf(const Menu& menu) const;

  /// The user has pressed a menu. May be empty.
  std::function<void(Menu& menu)> chosen;

 protected:
  LRESULT Receive(const Message& message) override;
  void Paint(HDC dc, const RECT& area) override;

 private:
  /// Where the captions stand, from left to right.
  std::vector<RECT> Places(HDC dc) const;
  RECT OnScreen(RECT place) const;
  /// The pointer has moved to a menu; with the keyboard, one stays lit.
  void Point(Menu* menu);
  void Press(Menu* menu);
  void HearFocus(bool has);
  void HearKey(WPARAM key);
  void HearCharacter(char16_t character);
  void TellLit() const;
  void PaintMenu(HDC dc, Menu& menu, RECT place) const;

  Form* form_;  // null once it is going
  std::vector<Menu*> menus_;
  Menu* lit_ = nullptr;
  POINT pointer_ = {};  // on the screen
};

}  // namespace lumenote
