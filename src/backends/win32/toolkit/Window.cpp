#include "backends/win32/toolkit/Window.h"

#include <new>

#include "backends/win32/toolkit/VisualStyles.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

constexpr const wchar_t* kProperty = L"LumenoteWindow";

/// Its address lies in the module.
const char kInside = 0;

/// The child window that tells something of itself; null for another message.
HWND Teller(const Message& message) {
  switch (message.id) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return reinterpret_cast<HWND>(message.l);
    case WM_NOTIFY:
      return reinterpret_cast<const NMHDR*>(message.l)->hwndFrom;
    default:
      return nullptr;
  }
}

}  // namespace

Window::Window(HWND parent, const WindowKind& kind) : owned_(true) {
  const VisualStyles styles;
  handle_ = CreateWindowExW(kind.exStyle, kind.className, nullptr, kind.style, 0, 0, 0, 0, parent,
                            nullptr, OwnModule(), nullptr);
  if (!handle_) throw RuntimeError(ErrorNumber::OutOfMemory);
  TakeOver();
}

Window::Window(HWND existing) : handle_(existing), owned_(false) { TakeOver(); }

Window::~Window() {
  const HWND handle = handle_;
  Release();
  if (owned_ && handle) DestroyWindow(handle);
}

void Window::TakeOver() {
  if (Window* parent = Of(GetParent(handle_))) parent_ = parent->weak_from_this().lock();
  SetPropW(handle_, kProperty, this);
  before_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Dispatch)));
}

void Window::Release() {
  if (!handle_) return;
  SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before_));
  RemovePropW(handle_, kProperty);
  handle_ = nullptr;
}

Window* Window::Of(HWND handle) {
  return handle ? static_cast<Window*>(GetPropW(handle, kProperty)) : nullptr;
}

// Windows under construction or destruction have no owner, and leave everything to the system.
// Exceptions must not pass through it.
LRESULT CALLBACK Window::Dispatch(HWND handle, UINT id, WPARAM w, LPARAM l) {
  Window* const window = Of(handle);
  if (!window) return DefWindowProcW(handle, id, w, l);
  const std::shared_ptr<Window> self = window->weak_from_this().lock();
  if (!self) return window->Default({id, w, l});
  try {
    return self->Handle({id, w, l});
  } catch (const RuntimeError&) {
  } catch (const std::bad_alloc&) {
  }
  return 0;
}

LRESULT Window::Handle(const Message& message) {
  if (const auto answer = NoticeOfChild(message)) return *answer;
  if (listener_)
    if (const auto answer = listener_->Hear(message)) return *answer;
  if (!handle_) return 0;
  if (message.id != WM_NCDESTROY) {
    const LRESULT answer = Receive(message);
    if (listener_) listener_->HearHandled(message);
    return answer;
  }
  const HWND handle = handle_;
  const WNDPROC before = before_;
  Release();
  return CallWindowProcW(before, handle, message.id, message.w, message.l);
}

LRESULT Window::Default(const Message& message) {
  return CallWindowProcW(before_, handle_, message.id, message.w, message.l);
}

std::optional<LRESULT> Window::NoticeOfChild(const Message& message) {
  Window* const child = Of(Teller(message));
  const std::shared_ptr<Window> kept = child ? child->weak_from_this().lock() : nullptr;
  if (!kept || !kept->listener_) return std::nullopt;
  return kept->listener_->HearNotice(message);
}

const wchar_t* OwnClass(const wchar_t* name, UINT style, LPCWSTR cursor) {
  WNDCLASSEXW known = {};
  known.cbSize = sizeof known;
  if (GetClassInfoExW(OwnModule(), name, &known)) return name;
  WNDCLASSEXW made = {};
  made.cbSize = sizeof made;
  made.style = style;
  made.lpfnWndProc = &DefWindowProcW;
  made.hInstance = OwnModule();
  made.hCursor = LoadCursorW(nullptr, cursor);
  made.lpszClassName = name;
  RegisterClassExW(&made);
  return name;
}

HINSTANCE OwnModule() {
  HMODULE module = nullptr;
  constexpr DWORD kHow =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  GetModuleHandleExW(kHow, reinterpret_cast<LPCWSTR>(&kInside), &module);
  return module;
}

}  // namespace lumenote
