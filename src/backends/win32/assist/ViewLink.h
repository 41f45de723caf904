// A view, for assistive programs that may hold on to it longer than its window lives.
#pragma once
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "backends/win32/assist/UiaText.h"
#include "backends/win32/toolkit/Window.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

/// What users call a view; asked as long as it is attached.
using ViewName = std::function<std::u16string()>;

class ViewLink {
 public:
  /// `view` belongs to the object of `window`.
  ViewLink(HWND window, NoteView& view, ViewName name)
      : window_(window),
        view_(view),
        name_(std::move(name)),
        owner_(Window::Of(window)->weak_from_this()) {}

  HWND Handle() const { return window_; }
  /// As long as `Hold` holds it; empty if it has none.
  std::u16string Name() const { return name_ ? name_() : std::u16string(); }
  /// Null when the window or what it shows has gone; else keeps the window's object alive.
  std::shared_ptr<NoteView> Hold() const {
    const std::shared_ptr<Window> owner = owner_.lock();
    return owner && view_.IsAttached() ? std::shared_ptr<NoteView>(owner, &view_) : nullptr;
  }
  /// Answers a client's question by `answer`, which takes the text and returns an HRESULT. No
  /// exception passes.
  template <class Answer>
  HRESULT Ask(const Answer& answer) const {
    const std::shared_ptr<NoteView> view = Hold();
    if (!view) return uia::kNotAvailable;
    try {
      AccessibleText text(*view);
      return answer(text);
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  HWND window_;
  NoteView& view_;  // while the owner lives
  ViewName name_;
  std::weak_ptr<Window> owner_;
};

/// Null if there is no memory.
inline BSTR BstrOf(std::u16string_view text) {
  return SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()),
                           static_cast<UINT>(text.size()));
}

}  // namespace lumenote
