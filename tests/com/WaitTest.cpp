// A host that waits while its user works in the editor: what it sees, and what it finds afterwards.
#include "ComHost.h"

namespace lumenote {
namespace {

using WaitTest = ComTest;

TEST_F(WaitTest, WhatTheUserTypesComesBack) {
  const Control control = CreateWith(u"note");
  EditorUser user = UserOfEditor(L"Forêt, ");
  const Meanwhile meanwhile([&] { return user.Step(); });
  EXPECT_EQ(control->ShowMicroEdit(1), S_OK);
  EXPECT_EQ(NoteOf(control), u"Forêt, note");
}

TEST_F(WaitTest, TheHostsEventsRun) {
  const Control control = CreateWith(u"note");
  std::u16string read;
  const Meanwhile later([&] {
    read = NoteOf(control);
    return true;
  });
  EXPECT_EQ(control->ShowMicroEdit(1), S_OK);
  EXPECT_EQ(read, u"note");
}

TEST_F(WaitTest, TheHostsEndEndsTheWaitsAndReachesTheHost) {
  const Control outer = CreateWith(u"un"), inner = CreateWith(u"deux");
  const Meanwhile later([&] {
    const Meanwhile end([] {
      PostQuitMessage(7);
      return true;
    });
    EXPECT_EQ(inner->ShowMicroEdit(1), S_OK);
    return true;
  });
  EXPECT_EQ(outer->ShowMicroEdit(1), S_OK);
  EXPECT_FALSE(FindEditor());
  MSG message;
  EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.wParam, 7U);
}

/// A host's event that lets go of the control while it waits.
TEST_F(WaitTest, TheControlOutlivesTheCallThatWaits) {
  Control control = CreateWith(u"note");
  ICoBxRtf* const waiting = control.Get();
  const Meanwhile later([&] {
    NoteOf(control);
    control = Control();
    return true;
  });
  EXPECT_EQ(waiting->ShowMicroEdit(1), S_OK);
}

class HostWindow {
 public:
  explicit HostWindow(HWND owner, DWORD style = WS_OVERLAPPEDWINDOW)
      : handle_(CreateWindowExW(0, L"STATIC", L"Hôte", style | WS_VISIBLE, 0, 0, 200, 100, owner,
                                nullptr, nullptr, nullptr)) {}
  ~HostWindow() { DestroyWindow(handle_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  HWND Handle() const { return handle_; }
  bool Enabled() const { return IsWindowEnabled(handle_) != FALSE; }

 private:
  HWND handle_;
};

/// A host's filter of messages, by which it steers the keyboard in windows of its own.
class MessageFilter {
 public:
  explicit MessageFilter(HWND window)
      : hook_(SetWindowsHookExW(WH_MSGFILTER, &See, nullptr, GetCurrentThreadId())) {
    window_ = window;
    own = others = 0;
  }
  ~MessageFilter() { UnhookWindowsHookEx(hook_); }
  MessageFilter(const MessageFilter&) = delete;
  MessageFilter& operator=(const MessageFilter&) = delete;

  static inline int own = 0, others = 0;  // keys of the window, characters of the editor

 private:
  static LRESULT CALLBACK See(int, WPARAM, LPARAM message) {
    const auto [window, id] = std::pair(reinterpret_cast<const MSG*>(message)->hwnd,
                                        reinterpret_cast<const MSG*>(message)->message);
    const bool taken = window == window_ && id == WM_KEYDOWN;
    own += taken;
    others += id == WM_CHAR;
    return taken;
  }

  static inline HWND window_ = nullptr;
  HHOOK hook_;
};

TEST_F(WaitTest, TheHostSteersItsOwnWindows) {
  const HostWindow window(nullptr);
  const MessageFilter filter(window.Handle());
  const Control control = CreateWith(u"note");
  EditorUser user = UserOfEditor(L"x");
  PostMessageW(window.Handle(), WM_KEYDOWN, VK_TAB, 1);
  const Meanwhile meanwhile([&] { return user.Step(); });
  EXPECT_EQ(control->ShowMicroEdit(1), S_OK);
  EXPECT_EQ(filter.own, 1);
  EXPECT_EQ(filter.others, 0);
}

/// A host opens the editor from a modal dialog of its own.
TEST_F(WaitTest, TheHostsModalStateIsKept) {
  const HostWindow main(nullptr);
  const HostWindow dialog(main.Handle());
  EnableWindow(main.Handle(), FALSE);
  const Control control = CreateWith(u"note");
  EditorUser user = UserOfEditor(L"x");
  bool boxSeen = false;
  const Meanwhile meanwhile([&] {
    EXPECT_FALSE(main.Enabled());
    const HWND editor = FindEditor();
    const bool box = editor && BoxOver(editor);
    if (box) {
      EXPECT_FALSE(dialog.Enabled() || IsWindowEnabled(editor));
    }
    boxSeen = boxSeen || box;
    return user.Step();
  });
  EXPECT_EQ(control->ShowMicroEdit(1), S_OK);
  EXPECT_TRUE(boxSeen);
  EXPECT_FALSE(main.Enabled());
  EXPECT_TRUE(dialog.Enabled());
}

}  // namespace
}  // namespace lumenote
