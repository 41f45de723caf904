// The surface's window, driven by the messages that the system sends.
#include <array>
#include <thread>
#include <tuple>

#include "backends/win32/view/TransferData.h"
#include "view/Edits.h"
#include "win32/Input.h"
#include "win32/SurfaceBench.h"

namespace lumenote {
namespace {

TEST_F(SurfaceWindowTest, KeysAndCharactersEdit) {
  struct Row {
    const char16_t* before;
    UINT id;
    std::vector<WPARAM> keys;
    const char* after;
  };
  const Row rows[] = {{u"|", WM_CHAR, {L'a', L'\u00E9'}, "aé|"},
                      {u"|", WM_CHAR, {0xD834, 0xDD1E}, "𝄞|"},
                      {u"|", WM_CHAR, {3, 0x7F, L'\r'}, "|"},
                      {u"ab|", WM_KEYDOWN, {VK_RETURN}, "ab¶|"},
                      {u"ab|", WM_KEYDOWN, {VK_TAB}, "ab\t|"},
                      {u"ab|", WM_KEYDOWN, {VK_LEFT, VK_BACK}, "|b"},
                      {u"ab|¶c", WM_KEYDOWN, {VK_DELETE, VK_END, L'X'}, "abc|"}};
  for (const Row& row : rows) {
    Put(row.before);
    for (const WPARAM key : row.keys) Send(row.id, key);
    EXPECT_EQ(Shown(), row.after);
  }
  locked = true;
  Put(u"ab|");
  Send(WM_CHAR, L'c');
  Send(WM_KEYDOWN, VK_BACK);
  Send(WM_KEYDOWN, VK_LEFT);
  EXPECT_EQ(Shown(), "a|b");
  Send(WM_KEYDOWN, VK_ESCAPE);
  EXPECT_EQ(unused.back().name, KeyName::Escape);
}

/// A key as a message loop delivers it: what TranslateMessage queues comes after the key itself.
struct Stroke {
  WPARAM key;
  std::u16string characters{};
  UINT kind = WM_CHAR;
  std::vector<int> held{};
};

void Deliver(HWND window, const Stroke& stroke) {
  constexpr LPARAM kWhat = 0x1A0001;  // the key's own scan code
  BYTE state[256] = {};
  for (const int key : stroke.held) state[key] = 0x80;
  SetKeyboardState(state);
  const bool alt = stroke.held == std::vector<int>{VK_MENU};
  for (const char16_t unit : stroke.characters) PostMessageW(window, stroke.kind, unit, kWhat);
  SendMessageW(window, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, stroke.key, kWhat);
  MSG queued;
  while (PeekMessageW(&queued, window, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
    DispatchMessageW(&queued);
  SetKeyboardState(std::array<BYTE, 256>{}.data());
}

TEST_F(SurfaceWindowTest, LayoutsOfManyKindsType) {
  const std::vector<int> altGr = {VK_CONTROL, VK_MENU};
  const std::vector<int> alt = {VK_MENU};
  const Stroke circumflex{VK_OEM_6, u"^", WM_DEADCHAR};
  const std::tuple<std::vector<Stroke>, const char*> rows[] = {
      {{circumflex, {'E', u"ê"}}, "abê|"},
      {{circumflex, {'X', u"^x"}}, "ab^x|"},
      {{circumflex, {VK_SPACE, u"^"}}, "ab^|"},
      {{circumflex, {VK_RETURN, u"^\r"}}, "ab^¶|"},
      {{circumflex, {VK_BACK, u"^\b"}}, "ab|"},
      {{{VK_BACK, u"\b"}}, "a|"},
      {{{VK_BACK, u"\x7F", WM_CHAR, {VK_CONTROL}}}, "|"},
      {{{'0', u"@", WM_CHAR, altGr}, {'E', u"€", WM_CHAR, altGr}, {'5', u"[", WM_CHAR, altGr}},
       "ab@€[|"},
      {{{'E', u"", WM_CHAR, altGr}}, "ab|"},
      {{{'A', u"\x01", WM_CHAR, {VK_CONTROL}}}, "^ab|"},
      {{{VK_NUMPAD2, u"", WM_CHAR, alt}, {VK_NUMPAD1, u"", WM_CHAR, alt}, {VK_MENU, u"é"}}, "abé|"},
      {{{VK_PACKET, u"\xD834"}, {VK_PACKET, u"\xDD1E"}}, "ab𝄞|"},
      {{{VK_PACKET, u"\xD834"}, {VK_PACKET, u"x"}, {VK_PACKET, u"\xDD1E"}}, "abx|"},
  };
  for (const auto& [strokes, after] : rows) {
    Put(u"ab|");
    for (const Stroke& stroke : strokes) Deliver(Handle(), stroke);
    EXPECT_EQ(Shown(), after);
  }
  for (const KeyStroke& key : unused) EXPECT_TRUE(key.alt && !key.control) << "AltGr only types";
  const std::pair<WPARAM, const char*> units[] = {
      {0x1D11E, "𝄞|"}, {U'é', "é|"}, {0x110000, "|"}, {0xFFFFFFFF, "|"}, {UNICODE_NOCHAR, "|"}};
  for (const auto& [unit, after] : units) {
    Put(u"|");
    EXPECT_EQ(Send(WM_UNICHAR, unit), unit == UNICODE_NOCHAR ? TRUE : FALSE);
    EXPECT_EQ(Shown(), after);
  }
}

/// A host that lets the view go when its window is closed.
struct Closing : MessageListener {
  explicit Closing(SurfaceWindow& shown) : view(shown) {}
  std::optional<LRESULT> Hear(const Message& message) override {
    if (message.id != WM_CLOSE) return std::nullopt;
    view.Detach();
    return 0;
  }
  std::optional<LRESULT> HearNotice(const Message&) override { return std::nullopt; }
  SurfaceWindow& view;
};

TEST_F(SurfaceWindowTest, AKeyFindsTheViewGone) {
  Put(u"|un deux");
  Closing closing(*window);
  const auto host = std::make_shared<Window>(top);
  host->Listener(&closing);
  std::jthread other([this] { SendMessageW(top, WM_CLOSE, 0, 0); });
  while (!(HIWORD(GetQueueStatus(QS_SENDMESSAGE)) & QS_SENDMESSAGE)) SwitchToThread();
  Send(WM_KEYDOWN, VK_DELETE);
  EXPECT_FALSE(window->IsAttached());
  EXPECT_EQ(Shown(), "|un deux");
}

TEST_F(SurfaceWindowTest, TheSystemsMouseSelects) {
  const auto press = [&](Position at, int times = 1) {
    MoveMouse(OnScreen(at));
    for (int i = 0; i < times; ++i)
      for (const DWORD act : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) UseMouse(act);
  };
  const auto drag = [&](Position from, Position to) {
    MoveMouse(OnScreen(from));
    UseMouse(MOUSEEVENTF_LEFTDOWN);
    MoveMouse(OnScreen(to));
    UseMouse(MOUSEEVENTF_LEFTUP);
  };
  const std::tuple<std::function<void()>, const char*> rows[] = {
      {[&] { press(3); }, "a¶|un deux trois"},
      {[&] { press(8, 2); }, "a¶un ^deux| trois"},
      {[&] { press(8, 3); }, "a¶^un deux trois|"},
      {[&] { press(8, 2), press(3); }, "a¶|un deux trois"},
      {[&] { drag(7, 9); }, "a¶un d^eu|x trois"},
      {[&] { press(7), Hold(VK_SHIFT, true), press(9), Hold(VK_SHIFT, false); },
       "a¶un d^eu|x trois"}};
  for (const auto& [act, after] : rows) {
    Put(u"a¶un deux trois|");
    press(0);  // somewhere else than the last time
    act();
    Pump();
    EXPECT_EQ(Shown(), after);
  }
  released.clear();
  for (const DWORD act : {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP}) UseMouse(act);
  Pump();
  ASSERT_EQ(released.size(), 1u);
  EXPECT_EQ(released[0].button, MouseButton::Right);
}

TEST_F(SurfaceWindowTest, TheSystemsMouseScrolls) {
  const auto scrolled = [&] { return window->Text().Pane().Scroll().Read().value; };
  Put(u"|" + Words(5000));
  MoveMouse(OnScreen(0));
  UseMouse(MOUSEEVENTF_WHEEL, -WHEEL_DELTA);
  Pump();
  const double turned = scrolled();
  EXPECT_GT(turned, 0);
  Send(WM_VSCROLL, SB_PAGEDOWN);
  const double paged = scrolled();
  EXPECT_GT(paged, turned);
  const double zoom = window->Text().Pane().Zoom();
  Hold(VK_CONTROL, true);
  UseMouse(MOUSEEVENTF_WHEEL, WHEEL_DELTA);
  Hold(VK_CONTROL, false);
  Pump();
  EXPECT_GT(window->Text().Pane().Zoom(), zoom);
  Put(u"|" + Words(5000));
  RECT area;
  GetWindowRect(Handle(), &area);
  MoveMouse({area.left + 50, area.top + 50});
  UseMouse(MOUSEEVENTF_LEFTDOWN);
  MoveMouse({area.left + 50, area.bottom + 40});
  MSG message;  // the window's timer goes on while the mouse rests below it
  while (scrolled() <= paged && GetMessageW(&message, nullptr, 0, 0) > 0)
    DispatchMessageW(&message);
  UseMouse(MOUSEEVENTF_LEFTUP);
  Pump();
  EXPECT_GT(surface.Selected().Length(), 500);
  EXPECT_EQ(window->Differences(), std::vector<std::string>());
}

TEST_F(SurfaceWindowTest, SystemCaretFollows) {
  Put(u"un deux|");
  POINT at;
  ASSERT_TRUE(GetCaretPos(&at));
  EXPECT_EQ(at.x, static_cast<LONG>(window->Text().Pane().CaretAt(7)->left));
  Send(WM_KEYDOWN, VK_HOME);
  window->Settle();
  GetCaretPos(&at);
  EXPECT_EQ(at.x, static_cast<LONG>(window->Text().Pane().CaretAt(0)->left));
}

TEST_F(SurfaceWindowTest, OffersAPictureThatIsDraggedAsAnImage) {
  surface.TextRTF(u"{\\rtf1{\\pict\\pngblip 89504E470D0A1A0A00}}");
  surface.SelStart(0);
  surface.SelLength(1);
  const ComOwner<TransferData> data(new TransferData(TextExcerpt(surface)));
  FORMATETC png = {static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"PNG")), nullptr,
                   DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
  STGMEDIUM medium = {};
  ASSERT_EQ(data->GetData(&png, &medium), S_OK);
  EXPECT_GE(GlobalSize(medium.hGlobal), 9u);
  ReleaseStgMedium(&medium);
  Put(u"^un| deux");
  EXPECT_EQ(ComOwner<TransferData>(new TransferData(TextExcerpt(surface)))->QueryGetData(&png),
            DV_E_FORMATETC);
}

// A drag offers what was selected when it began; a drop is one step of undo.
TEST_F(SurfaceWindowTest, DropsTextRtfAndHtml) {
  auto* const target = static_cast<IDropTarget*>(GetPropW(Handle(), L"OleDropTargetInterface"));
  ASSERT_TRUE(target);
  Put(u"^un| deux");
  const ComOwner<TransferData> data(new TransferData(TextExcerpt(surface)));
  Put(u"trois|");
  const std::tuple<DWORD, DWORD, DWORD> rows[] = {
      {DROPEFFECT_MOVE, 0, DROPEFFECT_MOVE},
      {DROPEFFECT_MOVE, MK_CONTROL, DROPEFFECT_NONE},
      {DROPEFFECT_COPY | DROPEFFECT_MOVE, 0, DROPEFFECT_COPY}};
  DWORD effect = 0;
  for (const auto& [offered, keys, chosen] : rows) {
    effect = offered;
    target->DragEnter(data.get(), MK_LBUTTON | keys, OnScreen(0), &effect);
    EXPECT_EQ(effect, chosen) << offered << " with " << keys;
  }
  effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
  target->Drop(data.get(), MK_LBUTTON, OnScreen(0), &effect);
  EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Shown(), "^un|trois");
  EXPECT_EQ(ReadTransfer(*data).text, u"un");
  EXPECT_NE(ReadTransfer(*data).html.value_or("").find("un"), std::string::npos);
  surface.Undo();
  EXPECT_EQ(surface.Text(), u"trois");
  locked = true;
  effect = DROPEFFECT_COPY;
  target->Drop(data.get(), MK_LBUTTON, OnScreen(0), &effect);
  EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
}

/// What the window shows.
std::vector<COLORREF> PixelsOf(SurfaceWindow& window, UniscribeLayouter& layouter) {
  const MemoryDc dc;
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, 280, -180, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const GdiObject<HBITMAP> bitmap(
      CreateDIBSection(dc.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  const SelectScope selected(dc.Get(), bitmap.Get());
  const ViewMarks marks = window.Text().Marks();
  const ViewColours colours = ViewColours::OfSystem(true);
  ViewPainter(window.Text().Pane(), layouter, marks, colours).Paint(dc.Get(), {0, 0, 280, 180});
  const auto* pixels = static_cast<const COLORREF*>(bits);
  std::vector<COLORREF> shown(pixels, pixels + 280 * 180);
  for (COLORREF& pixel : shown) pixel &= 0xFFFFFF;  // images leave their opacity there
  return shown;
}

TEST_F(SurfaceWindowTest, PaintsPictures) {
  const std::u16string header = u"28000000010000000100000001001800" + std::u16string(48, u'0');
  const auto shown = [&](const std::u16string& picture) {
    surface.TextRTF(u"{\\rtf1{\\pict\\picwgoal600\\pichgoal600" + picture + u"}}");
    window->Text().Settle();
    return PixelsOf(*window, layouter);
  };
  const auto red = shown(u"\\dibitmap0 " + header + u"0000ff00");
  EXPECT_EQ(std::ranges::count(red, COLORREF{0xFF0000}), 40 * 40);
  surface.UserSelect(0, 1);
  EXPECT_EQ(std::ranges::count(PixelsOf(*window, layouter), COLORREF{0xFF0000}), 0) << "tinted";
  const auto label = shown(u"\\wmetafile8 0100");
  EXPECT_GT(std::ranges::count(label, COLORREF{0x808080}), 4 * 38) << "a frame";
}

TEST_F(SurfaceWindowTest, PaintsTextAndSelectionAndLeavesNothingBehind) {
  Put(u"|");
  const std::vector<COLORREF> empty = PixelsOf(*window, layouter);
  EXPECT_EQ(std::ranges::count(empty, empty[0]), std::ssize(empty));
  surface.TextRTF(u"{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\cf1\\fs40\\ul rouge\\par}");
  const std::vector<COLORREF> red = PixelsOf(*window, layouter);
  EXPECT_GT(std::ranges::count(red, COLORREF{0xFF0000}), 50);
  surface.UserSelect(0, 5);
  const std::vector<COLORREF> selected = PixelsOf(*window, layouter);
  EXPECT_GT(std::ranges::count(selected, selected[90 * 280 + 279]), 1000);
  EXPECT_NE(selected, red);
  surface.UserSelect(2, 3);
  const auto left = std::ranges::count(PixelsOf(*window, layouter), COLORREF{0xFF0000});
  EXPECT_GT(left, 50) << "beside the selection";
  EXPECT_LT(left, std::ranges::count(red, COLORREF{0xFF0000}));
  const int alive = GdiCount::Alive();
  PixelsOf(*window, layouter);
  EXPECT_EQ(GdiCount::Alive(), alive);
}

}  // namespace
}  // namespace lumenote
