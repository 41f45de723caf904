#include "backends/win32/view/input/Composing.h"

#include <cmath>

#include "backends/win32/view/input/ImeRequests.h"

// After the system's own header.
#include <imm.h>

namespace lumenote {

namespace {

/// The input context of a window for a block.
class ContextScope {
 public:
  explicit ContextScope(HWND window) : window_(window), context_(ImmGetContext(window)) {}
  ~ContextScope() {
    if (context_) ImmReleaseContext(window_, context_);
  }
  ContextScope(const ContextScope&) = delete;
  ContextScope& operator=(const ContextScope&) = delete;

  HIMC Get() const { return context_; }

 private:
  HWND window_;
  HIMC context_;
};

std::u16string TextOf(HIMC context, DWORD part) {
  const LONG bytes = ImmGetCompositionStringW(context, part, nullptr, 0);
  if (bytes <= 0) return {};
  std::u16string text(static_cast<std::size_t>(bytes) / sizeof(char16_t), u'\0');
  ImmGetCompositionStringW(context, part, text.data(), static_cast<DWORD>(bytes));
  return text;
}

/// What a WM_IME_COMPOSITION says; `what` is its LPARAM. One that tells of the caret alone leaves
/// the text as it is.
ViewInput::Message CompositionOf(HWND window, LPARAM what) {
  constexpr LPARAM kComposed =
      GCS_COMPSTR | GCS_COMPATTR | GCS_COMPCLAUSE | GCS_CURSORPOS | GCS_DELTASTART;
  const ContextScope context(window);
  ViewInput::Message message;
  if (what & GCS_RESULTSTR) message.committed = TextOf(context.Get(), GCS_RESULTSTR);
  if (!(what & kComposed)) return message;
  message.composed = TextOf(context.Get(), GCS_COMPSTR);
  const LONG caret = ImmGetCompositionStringW(context.Get(), GCS_CURSORPOS, nullptr, 0);
  const auto length = static_cast<int>(message.composed.size());
  message.caret = caret < 0 || caret > length ? length : static_cast<int>(caret);
  return message;
}

/// The view itself shows what is composed.
LRESULT SetContext(HWND window, const Message& message) {
  constexpr LPARAM kOwnWindow = static_cast<LPARAM>(ISC_SHOWUICOMPOSITIONWINDOW);
  return DefWindowProcW(window, message.id, message.w, message.l & ~kOwnWindow);
}

}  // namespace

std::optional<LRESULT> Composing::Answer(const Message& message) {
  switch (message.id) {
    case WM_IME_SETCONTEXT:
      return SetContext(window_, message);
    case WM_IME_STARTCOMPOSITION:
      Place();
      return 0;
    case WM_IME_COMPOSITION:
      input_.Take(CompositionOf(window_, message.l));
      if (view_.IsAttached()) Place();
      return 0;
    case WM_IME_ENDCOMPOSITION:
      input_.Take({});
      return 0;
    case WM_IME_REQUEST:
      return AnswerRequest(window_, view_, message);
  }
  return std::nullopt;
}

void Composing::Place() {
  const ContextScope context(window_);
  const auto caret = view_.Pane().CaretAt(view_.Surface().Caret());
  if (!context.Get() || !caret) return;
  COMPOSITIONFORM form = CompositionFormOf(*caret);
  ImmSetCompositionWindow(context.Get(), &form);
  CANDIDATEFORM list = CandidateFormOf(*caret);
  ImmSetCandidateWindow(context.Get(), &list);
}

void Composing::Drop() const {
  const ContextScope context(window_);
  if (context.Get()) ImmNotifyIME(context.Get(), NI_COMPOSITIONSTR, CPS_CANCEL, 0);
}

}  // namespace lumenote
