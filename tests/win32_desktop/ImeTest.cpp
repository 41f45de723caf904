// Input methods at the surface, through the system's input contexts.
#include <functional>

#include "win32/EditorBench.h"
#include "win32/SurfaceBench.h"

// After the system's own header.
#include <imm.h>

namespace lumenote {
namespace {

/// The input method of a window.
class InputMethod {
 public:
  explicit InputMethod(HWND window) : window_(window), context_(ImmGetContext(window)) {
    ImmSetOpenStatus(context_, TRUE);
  }
  ~InputMethod() {
    End(CPS_CANCEL);
    ImmReleaseContext(window_, context_);
  }
  InputMethod(const InputMethod&) = delete;
  InputMethod& operator=(const InputMethod&) = delete;

  void Compose(std::u16string text) {
    ImmSetCompositionStringW(context_, SCS_SETSTR, text.data(),
                             static_cast<DWORD>(text.size() * sizeof(char16_t)), nullptr, 0);
    Pump();
  }
  void End(DWORD how) {
    ImmNotifyIME(context_, NI_COMPOSITIONSTR, how, 0);
    Pump();
  }
  POINT ListPlace() const {
    CANDIDATEFORM list = {};
    EXPECT_TRUE(ImmGetCandidateWindow(context_, 0, &list));
    return list.ptCurrentPos;
  }

 private:
  HWND window_;
  HIMC context_;
};

class ImeTest : public SurfaceWindowTest {
 protected:
  ImeTest() {
    SetForegroundWindow(top);
    SetFocus(Handle());
    Pump();
  }

  void ClickAt(Position position) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOf(position));
    Send(WM_LBUTTONUP, 0, PointOf(position));
  }
  std::u16string Composed() const { return layouter.Composed().text; }

  InputMethod method{Handle()};
};

TEST_F(ImeTest, WhatIsComposedIsTypedInOneStepOrNotAtAll) {
  struct Row {
    const char* what;
    const char16_t* before;
    std::function<void()> end;
    const char* after;
  };
  const Row rows[] = {
      {"accepted", u"ab|c", [&] { method.End(CPS_COMPLETE); }, "abかな|c"},
      {"accepted over a selection", u"a^b|c", [&] { method.End(CPS_COMPLETE); }, "aかな|c"},
      {"given up", u"ab|c", [&] { method.End(CPS_CANCEL); }, "ab|c"},
      {"given up over a selection", u"a^b|c", [&] { method.End(CPS_CANCEL); }, "a^b|c"},
      {"a click", u"ab|c", [&] { ClickAt(0); }, "|abかなc"},
      {"another window", u"ab|c", [&] { Send(WM_KILLFOCUS); }, "abかな|c"},
      {"the right button", u"ab|c", [&] { Send(WM_RBUTTONDOWN, MK_RBUTTON, PointOf(1)); },
       "abかな|c"}};
  for (const Row& row : rows) {
    SetFocus(Handle());
    Put(row.before);
    const std::u16string before = surface.Text();
    method.Compose(u"か");
    method.Compose(u"かな");
    EXPECT_EQ(Composed(), u"かな") << row.what;
    EXPECT_EQ(surface.Text(), before) << row.what;
    row.end();
    Pump();
    EXPECT_EQ(Shown(), row.after) << row.what;
    EXPECT_EQ(Composed(), u"") << row.what;
    if (surface.Text() != before) {
      EXPECT_EQ(surface.UndoType(), UndoKind::Typing) << row.what;
      surface.Undo();
    }
    EXPECT_EQ(surface.Text(), before) << row.what;
    EXPECT_FALSE(surface.CanUndo()) << row.what;
  }
  locked = true;
  Put(u"ab|");
  method.Compose(u"か");
  method.End(CPS_COMPLETE);
  EXPECT_EQ(Shown(), "ab|");
}

TEST_F(ImeTest, ListsOpenAtTheCaretThatIsShown) {
  Put(u"un deux|");
  window->Settle();
  LONG last = method.ListPlace().x;
  EXPECT_EQ(last, static_cast<LONG>(window->Text().Pane().CaretAt(7)->left));
  for (const char16_t* text : {u"か", u"かな"}) {
    method.Compose(text);
    EXPECT_GT(method.ListPlace().x, last);
    last = method.ListPlace().x;
  }
  Send(WM_IME_COMPOSITION, 0, GCS_CURSORPOS);
  EXPECT_EQ(Composed(), u"かな") << "only its caret has moved";
  IMECHARPOSITION place = {};
  place.dwSize = sizeof place;
  std::vector<LONG> places;
  for (place.dwCharPos = 0; place.dwCharPos < 3; ++place.dwCharPos) {
    Send(WM_IME_REQUEST, IMR_QUERYCHARPOSITION, reinterpret_cast<LPARAM>(&place));
    ScreenToClient(Handle(), &place.pt);
    places.push_back(place.pt.x);
  }
  EXPECT_LT(places[0], places[1]);
  EXPECT_LT(places[1], places[2]);
  EXPECT_EQ(places[2], last);
  Send(WM_IME_COMPOSITION, 0, 0);
  EXPECT_EQ(Composed(), u"") << "the input method has dropped it";
}

// What the user sees in the note is in it, whatever closes the editor.
TEST_F(EditorTest, ClosingKeepsWhatIsComposed) {
  for (const UINT way : {WM_CLOSE, WM_QUIT}) {
    sandbox.FileSystem().Write(u"C:\\n\\a.txt", "abc");
    std::unique_ptr<InputMethod> method;
    Meanwhile user([&] {
      if (!Editor() || !IsWindowVisible(Handle())) return false;
      if (method) return Answers(u"Lumenote", IDYES)();
      method = std::make_unique<InputMethod>(GetFocus());
      method->Compose(u"xyz");
      PostMessageW(way == WM_QUIT ? nullptr : Handle(), way, 0, 0);
      return false;
    });
    control->ShowMicroEdit(1);
    TakeQuit();
    EXPECT_EQ(Saved(), "xyzabc") << way;
  }
}

TEST_F(EditorTest, TheSessionsEndKeepsWhatIsComposed) {
  Open();
  InputMethod method(GetFocus());
  method.Compose(u"xyz");
  EXPECT_TRUE(SendMessageW(Handle(), WM_QUERYENDSESSION, 0, 0));
  EXPECT_TRUE(OnDisk("xyzabc"));
}

}  // namespace
}  // namespace lumenote
