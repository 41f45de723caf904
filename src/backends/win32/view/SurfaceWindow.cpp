#include "backends/win32/view/SurfaceWindow.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "backends/win32/toolkit/VisualStyles.h"
#include "backends/win32/toolkit/drawing/Units.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "backends/win32/toolkit/input/MousePoint.h"
#include "base/Strings.h"
#include "view/acts/TextTips.h"

// After the system's own header.
#include <windowsx.h>

namespace lumenote {

namespace {

constexpr UINT kSettle = WM_APP + 1;
constexpr UINT_PTR kScrolling = 1;  // a timer
constexpr UINT kScrollInterval = 30;
constexpr int kFramelessHeight = 20;  // a lower window gets no frame
constexpr double kMargin = 3;
constexpr DWORD kStyle = WS_CHILD | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL;

PixelPoint PointOf(LPARAM at) { return {1.0 * GET_X_LPARAM(at), 1.0 * GET_Y_LPARAM(at)}; }

/// A key whose text comes as a WM_CHAR: a character, also one made with AltGr.
bool Types(const KeyStroke& key) {
  const bool text = key.name == KeyName::Character || key.name == KeyName::Space;
  return text && key.control == key.alt;
}

HCURSOR CursorOf(PointerShape shape) {
  const LPCWSTR names[] = {IDC_IBEAM, IDC_ARROW, IDC_HAND};
  return LoadCursorW(nullptr, names[static_cast<int>(shape)]);
}

RECT RectOf(const PixelRect& rect) {
  return {std::lround(rect.left), std::lround(rect.top), std::lround(rect.right),
          std::lround(rect.bottom)};
}

}  // namespace

SurfaceWindow::SurfaceWindow(HWND parent, DocumentSurface& surface, UniscribeLayouter& layouter,
                             ViewCallbacks callbacks)
    : Window(parent,
             {OwnClass(L"LumenoteSurface", CS_DBLCLKS, IDC_IBEAM), kStyle, WS_EX_CLIENTEDGE}),
      layouter_(layouter),
      callbacks_(std::move(callbacks)),
      text_(surface, layouter, *this) {
  TakeScale();
  ShowGround();
}

SurfaceWindow::~SurfaceWindow() { Leave(); }

// Others may hold what they got of the window.
void SurfaceWindow::Leave() {
  target_->Revoke();
  assistance_.End();
}

void SurfaceWindow::Detach() {
  Leave();
  caret_.Remove();
  text_.Detach();
}

bool SurfaceWindow::Drop(PixelPoint at) {
  if (IsLocked()) return false;
  const int edits = text_.Edits();
  drop_.DropOwn(at, false);
  return text_.Edits() != edits;
}

// --- requests of the view

void SurfaceWindow::Act(const std::function<void()>& act) {
  if (callbacks_.act)
    callbacks_.act(act);
  else
    act();
}

PointerManners SurfaceWindow::Pointer() const {
  return {.dragDistance = 1.0 * GetSystemMetrics(SM_CXDRAG) + GetSystemMetrics(SM_CYDRAG),
          .doubleClickTime = 1.0 * GetDoubleClickTime()};
}

void SurfaceWindow::SettleSoon() { PostMessageW(Handle(), kSettle, 0, 0); }

// Pixels that are themselves still to be painted cannot be moved.
void SurfaceWindow::ShowDamage(const Damage& damage) {
  const HWND window = Handle();
  if (const auto& shift = damage.shift) {
    const RECT both =
        RectOf(PixelRect{0, shift->top, text_.Pane().Size().width, shift->bottom}.United(
            shift->Target(text_.Pane().Size().width)));
    if (GetUpdateRect(window, nullptr, FALSE))
      InvalidateRect(window, &both, FALSE);
    else
      ScrollWindowEx(window, 0, static_cast<int>(shift->by), &both, &both, nullptr, nullptr,
                     SW_INVALIDATE);
  }
  for (const PixelRect& area : damage.areas) {
    const RECT rect = RectOf(area);
    InvalidateRect(window, &rect, FALSE);
  }
  ShowCaretPlace();
}

void SurfaceWindow::ShowCaretPlace() {
  if (focused_) caret_.Place(text_.Pane().CaretAt(text_.Surface().Caret()));
}

void SurfaceWindow::SelectionMoved() {
  assistance_.TellSelection();
  if (focused_) composing_.Place();
}

// The system asks for the cursor only when the mouse moves.
void SurfaceWindow::ShowPointer(PointerShape shape) {
  if (std::exchange(shape_, shape) != shape && GetCapture() == nullptr) SetCursor(CursorOf(shape));
}

void SurfaceWindow::ScrollTimer(bool on) {
  if (on)
    SetTimer(Handle(), kScrolling, kScrollInterval, nullptr);
  else
    KillTimer(Handle(), kScrolling);
}

// --- messages

// Exceptions must not pass through the system. What could not be laid out or painted for lack of
// memory is shown later.
LRESULT SurfaceWindow::Receive(const Message& message) {
  try {
    if (message.id == WM_GETDLGCODE) return DLGC_WANTALLKEYS;
    if (message.id == WM_DESTROY) Leave();
    if (IsAttached())
      if (const std::optional<LRESULT> answer = Answer(message)) return *answer;
  } catch (const std::bad_alloc&) {
    text_.Forget();
    return 0;
  }
  return Handle() ? Default(message) : 0;
}

std::optional<LRESULT> SurfaceWindow::Answer(const Message& message) {
  if (message.id == WM_ERASEBKGND) return 1;
  if (message.id == WM_UNICHAR && message.w == UNICODE_NOCHAR) return TRUE;
  if (const auto answer = assistance_.Answer(message)) return answer;
  if (const auto answer = composing_.Answer(message)) return answer;
  return HandleAny(message) ? std::optional<LRESULT>(0) : std::nullopt;
}

bool SurfaceWindow::HandleAny(const Message& message) {
  if (message.id >= WM_MOUSEFIRST && message.id <= WM_MOUSELAST) return HandleMouse(message);
  if (message.id >= WM_KEYFIRST && message.id <= WM_KEYLAST) return HandleKeys(message);
  return HandleWindow(message);
}

bool SurfaceWindow::HandleWindow(const Message& message) {
  switch (message.id) {
    case kSettle:
      Settle();
      return true;
    case WM_PAINT:
      Paint();
      return true;
    case WM_NCPAINT:
      Default(message);
      if (framed_) PaintStyledEdge(Handle());
      return true;
    case WM_SIZE:
      Resize();
      return true;
    case WM_SHOWWINDOW:
      text_.Show(message.w != 0);
      return false;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      Focus(message.id == WM_SETFOCUS);
      return true;
    case WM_DPICHANGED_AFTERPARENT:
      TakeScale();
      return true;
    case WM_ENABLE:
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      ShowGround();
      return true;
    case WM_CAPTURECHANGED:
      mouse_.Cancel();
      return true;
    case WM_TIMER:
      if (message.w == kScrolling) mouse_.ScrollOn();
      return true;
    case WM_VSCROLL:
      bars_.Down(Handle(), LOWORD(message.w));
      return true;
    case WM_HSCROLL:
      bars_.Across(Handle(), LOWORD(message.w));
      return true;
    case WM_SETCURSOR:
      if (LOWORD(message.l) != HTCLIENT) return false;
      SetCursor(CursorOf(shape_));
      return true;
  }
  return false;
}

// --- painting and size

void SurfaceWindow::Paint() {
  if (!text_.IsSettled()) Settle();
  const PaintScope paint(Handle());
  const ViewMarks marks = text_.Marks();
  const ViewColours colours = ViewColours::OfSystem(IsWindowEnabled(Handle()));
  ViewPainter(text_.Pane(), layouter_, marks, colours).Paint(paint.Get(), paint.Area());
}

void SurfaceWindow::ShowGround() {
  layouter_.styles.Ground(ViewColours::OfSystem(IsWindowEnabled(Handle())).ground);
  text_.Restyle();
}

void SurfaceWindow::TakeScale() {
  constexpr double kUsualDpi = 96;
  layouter_.Scale(Scale::Of(Handle()).Dpi() / kUsualDpi);
  text_.Pane().Margin(kMargin * layouter_.Scale() + (framed_ ? 0 : GetSystemMetrics(SM_CXEDGE)));
  text_.Zoom(text_.Pane().Zoom());
}

// The text starts at the same position with and without a frame.
void SurfaceWindow::Resize() {
  const HWND window = Handle();
  RECT outer;
  GetWindowRect(window, &outer);
  const int height = outer.bottom - outer.top;
  const bool framed = height >= kFramelessHeight * layouter_.Scale();
  if (std::exchange(framed_, framed) != framed) {
    SetWindowLongPtrW(window, GWL_EXSTYLE, framed ? WS_EX_CLIENTEDGE : 0);
    TakeScale();
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  bars_.Choose(window, height);
  RECT area;
  GetClientRect(window, &area);
  text_.Resize({1.0 * area.right, 1.0 * area.bottom});
}

void SurfaceWindow::Focus(bool has) {
  focused_ = has;
  if (!has) caret_.Remove();
  text_.Focus(has);
}

// --- keyboard

bool SurfaceWindow::HandleKeys(const Message& message) {
  switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (message.w == VK_CONTROL) mouse_.Control(true);
      return PressKey(message);
    case WM_KEYUP:
      if (message.w == VK_CONTROL) mouse_.Control(false);
      return false;
    case WM_CHAR:
      TypeUnit(static_cast<char16_t>(message.w));
      return true;
    case WM_UNICHAR:
      TypeCharacter(static_cast<char32_t>(message.w));
      return true;
  }
  return false;
}

bool SurfaceWindow::PressKey(const Message& message) {
  if (message.w == VK_APPS) {
    keys_.OpenMenu();
    return true;
  }
  const std::optional<KeyStroke> key = StrokeOf(message.w);
  if (!key || Types(*key)) return false;
  const HWND window = Handle();
  const std::u16string accent = TakeAccent(window, message.l);
  if (!IsAttached()) return true;
  const bool used = UseAccent(*key, accent) || keys_.Press(key, {}) || Offer(*key);
  if (used) SwallowCharacter(window);
  return used;
}

// The accent of a dead key stands by itself, unless it is taken back.
bool SurfaceWindow::UseAccent(const KeyStroke& key, const std::u16string& accent) {
  if (accent.empty()) return false;
  if (key.name != KeyName::BackSpace) keys_.Press(std::nullopt, accent);
  return key.name == KeyName::BackSpace || !IsAttached();
}

bool SurfaceWindow::Offer(const KeyStroke& key) {
  return IsAttached() && callbacks_.key && callbacks_.key(key);
}

void SurfaceWindow::TypeCharacter(char32_t character) {
  constexpr char32_t kLast = 0x10FFFF;
  constexpr char32_t kFirstPair = 0x10000;
  if (character < kFirstPair) return TypeUnit(static_cast<char16_t>(character));
  if (character > kLast) return;
  TypeUnit(static_cast<char16_t>(0xD800 + ((character - kFirstPair) >> 10)));
  TypeUnit(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
}

// The halves of a surrogate pair come one by one; one without the other is none of the text.
void SurfaceWindow::TypeUnit(char16_t unit) {
  const char16_t high = std::exchange(highSurrogate_, IsHighSurrogate(unit) ? unit : u'\0');
  constexpr char16_t kDelete = 0x7F;
  if (unit < u' ' || unit == kDelete || IsHighSurrogate(unit)) return;
  if (!IsLowSurrogate(unit))
    keys_.Press(std::nullopt, std::u16string{unit});
  else if (high)
    keys_.Press(std::nullopt, std::u16string{high, unit});
}

// --- mouse

bool SurfaceWindow::HandleMouse(const Message& message) {
  if (message.id == WM_RBUTTONDOWN || message.id == WM_MBUTTONDOWN) text_.Complete();
  ShowTip(message);
  if (message.id <= WM_LBUTTONDOWN) mouse_.Control(message.w & MK_CONTROL);
  switch (message.id) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      PressLeft(message);
      return true;
    case WM_MOUSEMOVE:
      mouse_.Move(PointOf(message.l), message.w & MK_LBUTTON);
      return true;
    case WM_LBUTTONUP:
      mouse_.Up(PointOf(message.l));
      ReleaseCapture();
      Release(MouseButton::Left, message.l);
      return true;
    case WM_RBUTTONUP:
      mouse_.Cancel();
      Release(MouseButton::Right, message.l);
      return true;
    case WM_MBUTTONUP:
      mouse_.Cancel();
      Release(MouseButton::Middle, message.l);
      return true;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      Turn(message);
      return true;
  }
  return false;
}

void SurfaceWindow::ShowTip(const Message& message) {
  if (message.id == WM_MOUSEMOVE) {
    std::u16string tip = TipAt(text_.Pane(), PointOf(message.l));
    if (std::exchange(shownTip_, tip) != tip) tip_.Text(tip);
  }
  tip_.Relay(message);
}

void SurfaceWindow::PressLeft(const Message& message) {
  const HWND window = Handle();
  if (GetFocus() != window) SetFocus(window);
  if (!IsAttached()) return;
  SetCapture(window);
  const ViewMouse::Press press{
      .at = PointOf(message.l), .time = GetMessageTime(), .extend = (message.w & MK_SHIFT) != 0};
  if (message.id == WM_LBUTTONDBLCLK)
    mouse_.DoubleClick(press);
  else
    mouse_.Down(press);
}

void SurfaceWindow::Release(MouseButton button, LPARAM at) {
  if (IsAttached() && callbacks_.mouseUp)
    callbacks_.mouseUp({button, PointOf(Handle(), {.l = at})});
}

void SurfaceWindow::Turn(const Message& message) {
  const double notches = 1.0 * GET_WHEEL_DELTA_WPARAM(message.w) / WHEEL_DELTA;
  if (message.id == WM_MOUSEHWHEEL)
    bars_.TurnAcross(notches);
  else if (GET_KEYSTATE_WPARAM(message.w) & MK_CONTROL)
    text_.ZoomBy(notches);
  else
    bars_.Turn(notches);
}

}  // namespace lumenote
