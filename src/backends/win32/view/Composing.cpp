#include "backends/win32/view/Composing.h"

#include <cmath>

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

}  // namespace

ViewInput::Message CompositionOf(HWND window, LPARAM what) {
  const ContextScope context(window);
  ViewInput::Message message;
  if (what & GCS_RESULTSTR) message.committed = TextOf(context.Get(), GCS_RESULTSTR);
  if (!(what & GCS_COMPSTR)) return message;
  message.composed = TextOf(context.Get(), GCS_COMPSTR);
  const LONG caret = ImmGetCompositionStringW(context.Get(), GCS_CURSORPOS, nullptr, 0);
  const auto length = static_cast<int>(message.composed.size());
  message.caret = caret < 0 || caret > length ? length : static_cast<int>(caret);
  return message;
}

void PlaceComposition(HWND window, const PixelRect& caret) {
  const ContextScope context(window);
  if (!context.Get()) return;
  const POINT at{std::lround(caret.left), std::lround(caret.top)};
  COMPOSITIONFORM form = {CFS_POINT, at, {}};
  ImmSetCompositionWindow(context.Get(), &form);
  const RECT line{at.x, at.y, std::lround(caret.right), std::lround(caret.bottom)};
  CANDIDATEFORM list = {0, CFS_EXCLUDE, at, line};
  ImmSetCandidateWindow(context.Get(), &list);
}

}  // namespace lumenote
