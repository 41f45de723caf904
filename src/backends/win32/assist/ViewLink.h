// A view, for assistive programs that may hold on to it longer than its window lives.
#pragma once
#include <memory>
#include <new>
#include <string_view>

#include "backends/win32/assist/UiaText.h"
#include "backends/win32/toolkit/Window.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

class ViewLink {
 public:
  /// `view` belongs to the object of `window`.
  ViewLink(HWND window, NoteView& view)
      : window_(window), view_(view), owner_(Window::Of(window)->weak_from_this()) {}

  HWND Handle() const { return window_; }
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
  std::weak_ptr<Window> owner_;
};

/// Null if there is no memory.
inline BSTR BstrOf(std::u16string_view text) {
  return SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()),
                           static_cast<UINT>(text.size()));
}

/// The caption of the label before a window, else that of its form.
std::u16string NameOf(HWND window);

}  // namespace lumenote
