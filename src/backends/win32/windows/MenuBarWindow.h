// A low menu bar: the system's own is higher than the windows' design allows.
#pragma once
#include <functional>
#include <optional>
#include <vector>

#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/Units.h"
#include "forms/Menu.h"

namespace lumenote {

/// Shows the captions of the visible menus; the spaces in them are the only separation.
class MenuBarWindow final : public PaintedWindow {
 public:
  explicit MenuBarWindow(HWND parent);

  void Show(std::vector<Menu*> menus);
  /// Opens one of the menus below its caption.
  void Open(Menu& menu);
  /// Shows the list of a menu at a point of the screen, as far as it lies beside `below`. The
  /// window may be gone when it returns. May be empty.
  std::function<void(Menu& menu, const RECT& below)> opens;

 protected:
  LRESULT Receive(const Message& message) override;
  void Paint(HDC dc, const RECT& area) override;

 private:
  /// Where the captions stand, from left to right.
  std::vector<RECT> Places(HDC dc) const;
  std::optional<std::size_t> MenuAt(POINT at) const;
  void Light(std::optional<std::size_t> menu);
  void OpenAt(std::size_t place);

  std::vector<Menu*> menus_;
  std::optional<std::size_t> lit_;
};

}  // namespace lumenote
