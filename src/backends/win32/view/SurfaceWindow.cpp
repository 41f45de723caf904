#include "backends/win32/view/SurfaceWindow.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "backends/win32/toolkit/VisualStyles.h"
#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {

namespace {

constexpr UINT kSettle = WM_APP + 1;
constexpr UINT_PTR kScrolling = 1;  // a timer
constexpr UINT kScrollInterval = 30;
constexpr UINT_PTR kIdle = 2;  // a timer
constexpr UINT kIdleTime = 20;
constexpr int kFramelessHeight = 20;  // a lower window gets no frame
constexpr double kMargin = 3;
constexpr DWORD kStyle = WS_CHILD | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL;

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

void SurfaceWindow::IdleSoon() { SetTimer(Handle(), kIdle, kIdleTime, nullptr); }

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
  if (message.id >= WM_MOUSEFIRST && message.id <= WM_MOUSELAST) return mouse_.Handle(message);
  if (message.id >= WM_KEYFIRST && message.id <= WM_KEYLAST) return HandleKeys(message);
  return HandleLook(message) || HandleRest(message);
}

bool SurfaceWindow::HandleKeys(const Message& message) {
  const bool down = message.id == WM_KEYDOWN || message.id == WM_SYSKEYDOWN;
  if (message.w == VK_CONTROL && (down || message.id == WM_KEYUP)) mouse_.Acts().Control(down);
  return keys_.Handle(message);
}

bool SurfaceWindow::HandleLook(const Message& message) {
  switch (message.id) {
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
    case WM_DPICHANGED_AFTERPARENT:
      TakeScale();
      return true;
    case WM_ENABLE:
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      ShowGround();
      return true;
  }
  return false;
}

void SurfaceWindow::Tick(UINT_PTR timer) {
  if (timer == kScrolling) mouse_.Acts().ScrollOn();
  if (timer != kIdle) return;
  KillTimer(Handle(), kIdle);
  text_.WorkIdly();
}

bool SurfaceWindow::HandleRest(const Message& message) {
  switch (message.id) {
    case kSettle:
      Settle();
      return true;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      Focus(message.id == WM_SETFOCUS);
      return true;
    case WM_CAPTURECHANGED:
      mouse_.Acts().Cancel();
      return true;
    case WM_TIMER:
      Tick(message.w);
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

}  // namespace lumenote
