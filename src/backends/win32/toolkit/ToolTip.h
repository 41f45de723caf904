// A tooltip of one window.
#pragma once
#include <memory>
#include <string>

#include "backends/win32/toolkit/Window.h"

namespace lumenote {

/// Its native window is made when there is something to say.
class ToolTip {
 public:
  /// `tool` is the window that the tooltip belongs to.
  explicit ToolTip(HWND tool) : tool_(tool) {}

  void Text(const std::u16string& text);
  std::u16string Text() const;
  /// A message of the mouse reaches the tool.
  void Relay(const Message& message) const;

 private:
  void Make();

  HWND tool_;
  std::shared_ptr<Window> window_;
};

}  // namespace lumenote
