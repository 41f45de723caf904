// The editor on native windows: in a host's plain loop, closed in every way, at the session's end.
#include <cmath>

#include "backends/win32/system/ComObject.h"
#include "backends/win32/view/SurfaceWindow.h"
#include "win32/EditorBench.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {
namespace {

constexpr const char16_t* kTitle = u"Lumenote";  // of boxes, in a program without a name

TEST_F(EditorTest, KeysReachEditorAndDialogsInAPlainLoop) {
  Open();
  Type({VK_END, VK_LEFT, 'D', 'B'});
  EXPECT_EQ(Shown(), u"abdbc");
  Press({VK_CONTROL, 'Z'});
  Pump();
  EXPECT_EQ(Shown(), u"abc");
  Press({VK_CONTROL, 'F'});
  Pump();
  const HWND find = WindowTitled(u"Trouver / Remplacer");
  ASSERT_TRUE(find);
  EXPECT_EQ(GetActiveWindow(), find);
  EXPECT_EQ(GetWindow(find, GW_OWNER), Handle());
  Type({'B', VK_RETURN});
  EXPECT_EQ(Editor()->Document().SelText(), u"b");
  EXPECT_EQ(GetActiveWindow(), Handle());
  SetActiveWindow(find);
  Press({VK_MENU, 'M'});
  Pump();
  Type({VK_ESCAPE});
  EXPECT_FALSE(WindowTitled(u"Trouver / Remplacer"));
  EXPECT_EQ(GetActiveWindow(), Handle());
  Type({VK_DELETE});
  EXPECT_EQ(Shown(), u"ac");
}

TEST_F(EditorTest, AKeyShowsTheMenuBarForAsLongAsItHasTheKeyboard) {
  using Keys = std::vector<std::initializer_list<WORD>>;
  constexpr WORD kAltGr = VK_RMENU;
  struct Row {
    Keys call, leave;
    bool called = true;
    std::u16string text = u"abc";
  };
  const Row rows[] = {
      {{{VK_F10}}, {{VK_F10}}},
      {{{VK_MENU}}, {{VK_MENU}}},
      {{{VK_F10}}, {{VK_ESCAPE}}},
      {{{VK_MENU}}, {{VK_RIGHT}, {VK_DOWN}, {VK_ESCAPE}}},
      {{{VK_MENU}}, {{VK_RIGHT}, {VK_RIGHT}, {VK_RIGHT}, {VK_RETURN}, {'X'}}, true, u"axc"},
      {{{VK_CONTROL, kAltGr}}, {}, false},
      {{{VK_MENU, 'Q'}}, {}, false},
  };
  Open();
  const HWND document = GetFocus();
  const auto press = [](const Keys& keys) {
    for (const auto& key : keys) Press(key);
    Pump();
  };
  for (const bool shown : {false, true})
    for (const Row& row : rows) {
      Editor()->AfficheBarreMenu(shown ? 1 : 2);
      Editor()->Document().Text(u"abc");
      Editor()->Document().SelStart(1);
      Editor()->Document().SelLength(1);
      const auto place = &row - rows;
      press(row.call);
      EXPECT_EQ(GetFocus() != document, row.called) << place;
      EXPECT_EQ(Editor()->HasMenuBar(), row.called || shown) << place;
      press(row.leave);
      EXPECT_EQ(GetFocus(), document) << place;
      EXPECT_EQ(Editor()->HasMenuBar(), shown) << place;
      EXPECT_EQ(Editor()->Document().SelText(), row.text == u"abc" ? u"b" : u"") << place;
      EXPECT_EQ(Editor()->Document().Text(), row.text) << place;
      EXPECT_EQ(backend.PeerOf(*Editor())->Differences(), std::vector<std::string>()) << place;
    }
}

TEST_F(EditorTest, ACalledMenuBarGoesWithAClickElsewhereOrAnotherWindow) {
  Open();
  const HWND document = GetFocus();
  const HWND label = backend.PeerOf(*Editor())->PeerOf(Editor()->Lb_Format)->Native().Handle();
  const HWND ground = FindWindowExW(Handle(), nullptr, L"LumenoteContent", nullptr);
  const HWND other = CreateWindowExW(0, L"STATIC", L"Autre", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9,
                                     nullptr, nullptr, nullptr, nullptr);
  const auto click = [](HWND window) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
  };
  const std::function<void()> acts[] = {[&] { click(label); }, [&] { click(document); },
                                        [&] { click(ground); }, [&] { SetActiveWindow(other); }};
  for (const auto& act : acts) {
    SetActiveWindow(Handle());
    Type({VK_F10});
    EXPECT_TRUE(Editor()->HasMenuBar());
    act();
    Pump();
    EXPECT_FALSE(Editor()->HasMenuBar());
  }
  SetActiveWindow(Handle());
  EXPECT_EQ(GetFocus(), document);
  DestroyWindow(other);
}

TEST_F(EditorTest, AClickThatSendsTheMenuBarAwayLandsWhereTheTextWasSeen) {
  Open();
  const HWND document = GetFocus();
  auto& surface = dynamic_cast<SurfaceWindow&>(*Window::Of(document));
  const std::u16string note = u"un deux\r\ntrois quatre\r\ncinq";
  Editor()->Document().Text(note);
  for (const Position place : {1, 12}) {
    Editor()->Document().SelStart(0);
    Editor()->Document().SelLength(3);
    Type({VK_F10});
    const PixelRect caret = *surface.Text().Pane().CaretAt(place);
    POINT at = {std::lround(caret.left), std::lround(caret.top) + 4};
    ClientToScreen(document, &at);
    MoveMouse({at.x, at.y});
    UseMouse(MOUSEEVENTF_LEFTDOWN);
    Pump();
    EXPECT_TRUE(Editor()->HasMenuBar());
    EXPECT_EQ(GetFocus(), document);
    MoveMouse({at.x + 1, at.y});
    Pump();
    UseMouse(MOUSEEVENTF_LEFTUP);
    Pump();
    EXPECT_FALSE(Editor()->HasMenuBar());
    EXPECT_EQ(surface.Text().Surface().Caret(), place);
    EXPECT_EQ(Editor()->Document().SelLength(), 0);
    EXPECT_EQ(Editor()->Document().Text(), note);
  }
}

TEST_F(EditorTest, ScreenReadersNameTheNoteByItsFrame) {
  const std::pair<const char16_t*, const wchar_t*> rows[] = {{u"&Bois && prés", L"Bois & prés"},
                                                             {u"", L"Note"}};
  for (const auto& [title, name] : rows) {
    control->pTitreCadre(title);
    Open();
    void* found = nullptr;
    ASSERT_EQ(AccessibleObjectFromWindow(GetFocus(), static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), &found),
              S_OK);
    const ComOwner<IAccessible> note(static_cast<IAccessible*>(found));
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR told = nullptr;
    EXPECT_EQ(note->get_accName(self, &told), S_OK);
    EXPECT_STREQ(told, name);
    SysFreeString(told);
  }
}

TEST_F(EditorTest, HoweverItIsClosedTheNoteIsSaved) {
  const std::pair<UINT, WPARAM> ways[] = {
      {WM_CLOSE, 0}, {WM_SYSCOMMAND, SC_CLOSE}, {WM_QUIT, 7}, {WM_NULL, 0}};
  for (const auto& [message, parameter] : ways) {
    sandbox.FileSystem().Write(u"C:\\n\\a.txt", "abc");
    for (const bool waits : {false, true}) {
      const std::string before = Saved();
      bool typed = false;
      Meanwhile user([&] {
        if (!Editor() || !IsWindowVisible(Handle())) return false;
        if (std::exchange(typed, true)) return Answers(kTitle, IDYES)();
        Type({'X'});
        PostMessageW(message == WM_QUIT ? nullptr : Handle(), message, parameter, 0);
        if (message == WM_NULL) Editor()->Pop.mnuPopQuitter.UserClick();
        return false;
      });
      control->ShowMicroEdit(waits ? 1 : 0);
      std::optional<WPARAM> quit = TakeQuit();
      if (!waits) quit = RunHost();
      if (Editor()) control->pStrOrchm();
      EXPECT_EQ(Saved(), "x" + before) << message << waits;
      EXPECT_EQ(quit.has_value(), message == WM_QUIT && waits) << message << waits;
    }
  }
}

TEST_F(EditorTest, AQuitDuringAQuestionLosesNothing) {
  Open();
  Type({'X'});
  int step = 0;
  Meanwhile user([&] {
    if (!WindowTitled(kTitle)) return false;
    if (++step == 1) PostQuitMessage(9);
    return step > 3 && Answers(kTitle, IDYES)();
  });
  PostMessageW(Handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(RunHost(), 9u);
  EXPECT_EQ(Saved(), "xabc");
}

TEST_F(EditorTest, AQuestionThatGoesWithItsWindowDecidesNothing) {
  for (const bool inFile : {true, false}) {
    if (!inFile) control->pStrOrchm(u"abc");
    Meanwhile host([&, typed = false]() mutable {
      if (!Editor() || !IsWindowVisible(Handle())) return false;
      if (WindowTitled(kTitle)) return DestroyWindow(Handle()) != 0;
      if (!std::exchange(typed, true)) Type({'V', inFile ? WORD{'F'} : WORD{'S'}});
      PostMessageW(Handle(), WM_CLOSE, 0, 0);
      return false;
    });
    control->ShowMicroEdit(1);
    EXPECT_FALSE(Editor());
    EXPECT_TRUE(OnDisk(inFile ? "vfabc" : "vsabc"));
  }
  EXPECT_EQ(Saved(), "abc");
}

TEST_F(EditorTest, TheSessionsEndAsksNothingAndKeepsTheNote) {
  Open();
  Type({'Q', 'Q', 'Q'});
  EXPECT_TRUE(SendMessageW(Handle(), WM_QUERYENDSESSION, 0, 0));
  EXPECT_TRUE(OnDisk("qqqabc"));
  EXPECT_FALSE(SendMessageW(Handle(), WM_ENDSESSION, FALSE, 0));
  ASSERT_TRUE(Editor());
  Type({'Z'});
  SendMessageW(Handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_FALSE(Editor());
  EXPECT_TRUE(OnDisk("qqqzabc"));
  EXPECT_EQ(Saved(), "abc");
}

TEST_F(EditorTest, TheHostMayCloseItUnderAnOpenMenu) {
  Open();
  Type({'X'});
  bool opened = false;
  Meanwhile host([&] {
    if (!FindWindowW(L"#32768", nullptr)) return false;
    opened = true;
    Editor()->Abandon();
    return true;
  });
  const HWND surface = GetFocus();
  PostMessageW(surface, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(20, 10));
  PostMessageW(surface, WM_RBUTTONUP, 0, MAKELPARAM(20, 10));
  RunHost();
  EXPECT_TRUE(opened);
  EXPECT_FALSE(Editor());
}

TEST_F(EditorTest, OnTopIsChangedInPlaceAndActivatesNothing) {
  Open();
  const HWND other = CreateWindowExW(0, L"STATIC", L"Autre", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                     100, 100, nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(other);
  const HWND editor = Handle();
  for (const bool on : {true, false, true}) {
    Editor()->Pop.mnuPopMettreDessus.UserClick();
    const bool shown = (GetWindowLongW(editor, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    EXPECT_EQ(shown, Editor()->OnTop()) << on;
    HWND top = GetTopWindow(nullptr);
    while (top && !IsWindowVisible(top)) top = GetWindow(top, GW_HWNDNEXT);  // tips to come
    EXPECT_EQ(backend.IsTopmost(*Editor()), shown || top == editor) << on;
    EXPECT_EQ(GetActiveWindow(), other);
    EXPECT_EQ(Handle(), editor);
  }
  DestroyWindow(other);
}

}  // namespace
}  // namespace lumenote
