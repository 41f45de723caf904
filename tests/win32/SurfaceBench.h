// A surface in a window of its own, for tests.
#pragma once
#include <gtest/gtest.h>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/view/SurfaceWindow.h"
#include "surface/UserBench.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

class SurfaceWindowTest : public testing::Test {
 protected:
  SurfaceWindowTest() {
    callbacks.locked = [this] { return locked; };
    callbacks.name = [] { return std::u16string(u"Essai"); };
    callbacks.mouseUp = [this](const MouseEvent& event) { released.push_back(event); };
    callbacks.key = [this](const KeyStroke& key) {
      unused.push_back(key);
      return true;
    };
    window = std::make_shared<SurfaceWindow>(top, surface, layouter, callbacks);
    SetWindowPos(Handle(), nullptr, 0, 0, 300, 200, SWP_NOZORDER);
    ShowWindow(top, SW_SHOW);
    ShowWindow(Handle(), SW_SHOW);
    SetFocus(Handle());
  }
  ~SurfaceWindowTest() override {
    if (window) window->Detach();
    window.reset();
    DestroyWindow(top);
  }

  HWND Handle() const { return window->Handle(); }
  LRESULT Send(UINT id, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(Handle(), id, w, l);
  }
  void Put(std::u16string_view marked) {
    surface.Text(Unmarked(marked));
    const auto [anchor, caret] = MarksOf(marked);
    surface.UserSelect(anchor, caret);
    window->Settle();
  }
  std::string Shown() const {
    return ToUtf8(Marked(surface.Text(), surface.Anchor(), surface.Caret()));
  }
  LPARAM PointOf(Position position) {
    const PixelRect caret = window->Text().Pane().CaretAt(position).value_or(PixelRect());
    return MAKELPARAM(static_cast<int>(caret.left) + 1, static_cast<int>(caret.top) + 4);
  }
  POINTL OnScreen(Position position) {
    const LPARAM at = PointOf(position);
    POINT point{LOWORD(at), HIWORD(at)};
    ClientToScreen(Handle(), &point);
    return {point.x, point.y};
  }

  bool locked = false;
  std::vector<MouseEvent> released;
  std::vector<KeyStroke> unused;
  ViewCallbacks callbacks;
  HWND top = CreateWindowExW(0, L"STATIC", L"Essai", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr,
                             nullptr, nullptr, nullptr);
  MemoryClipboard clipboard;
  MemoryFiles files;
  UniscribeLayouter layouter;
  PieceBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
  std::shared_ptr<SurfaceWindow> window;
};

}  // namespace lumenote
