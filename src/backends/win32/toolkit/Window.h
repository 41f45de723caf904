// The owner of a native window, and of the messages that reach it.
#pragma once
#include <memory>
#include <optional>

#include "backends/win32/system/CodeInUse.h"
#include "backends/win32/system/System.h"

namespace lumenote {

/// What the system makes a window of.
struct WindowKind {
  const wchar_t* className;
  DWORD style = 0;
  DWORD exStyle = 0;
};

struct Message {
  UINT id = 0;
  WPARAM w = 0;
  LPARAM l = 0;
};

/// Sees the messages of a window first. An answer keeps the message from the window.
class MessageListener {
 public:
  virtual ~MessageListener() = default;
  virtual std::optional<LRESULT> Hear(const Message& message) = 0;
  /// The window has handled the message, and still has this listener.
  virtual void HearHandled(const Message&) {}
  /// What a child window tells its parent of itself (WM_COMMAND, WM_NOTIFY, WM_VSCROLL...).
  virtual std::optional<LRESULT> HearNotice(const Message& message) = 0;
};

/// Owns one window and receives its messages, whatever loop dispatches them. Made by make_shared:
/// it lives on while a message of its own, or of a child's, is handled, even when its owner has let
/// go. What its children tell of themselves goes to their own objects.
class Window : private CodeInUse, public std::enable_shared_from_this<Window> {
 public:
  /// A child of `parent`, if not null; not visible yet. Raises OutOfMemory (7) when the system
  /// refuses.
  Window(HWND parent, const WindowKind& kind);
  /// Takes over a window that the system owns and destroys.
  explicit Window(HWND existing);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// Null once the system has destroyed it.
  HWND Handle() const { return handle_; }
  /// Null for none; at most one.
  void Listener(MessageListener* listener) { listener_ = listener; }
  bool HasListener() const { return listener_ != nullptr; }

  /// The object of a native window; null if it is not one of ours.
  static Window* Of(HWND handle);

 protected:
  /// Handles a message; the default leaves it to the system.
  virtual LRESULT Receive(const Message& message) { return Default(message); }
  LRESULT Default(const Message& message);

 private:
  static LRESULT CALLBACK Dispatch(HWND handle, UINT id, WPARAM w, LPARAM l);
  void TakeOver();
  void Release();
  LRESULT Handle(const Message& message);
  static std::optional<LRESULT> NoticeOfChild(const Message& message);

  HWND handle_ = nullptr;
  WNDPROC before_ = nullptr;
  bool owned_;
  MessageListener* listener_ = nullptr;
  std::shared_ptr<Window> parent_;  // lives at least as long
};

/// Registers a window class of the component's once, and returns `name`. Its windows do what the
/// system does by default until an object takes them over. It stays when the component's DLL goes,
/// and so holds nothing of it.
const wchar_t* OwnClass(const wchar_t* name, UINT style = 0, LPCWSTR cursor = IDC_ARROW);

/// The program or DLL that the component is in.
HINSTANCE OwnModule();

}  // namespace lumenote
