#include "backends/win32/view/input/SystemCaret.h"

#include <cmath>

namespace lumenote {

namespace {

constexpr int kOutOfSight = -10'000;

/// What the user has set, at least that of the view.
double CaretWidth(double least) {
  DWORD width = 1;
  SystemParametersInfoW(SPI_GETCARETWIDTH, 0, &width, 0);
  return std::max<double>(least, width);
}

}  // namespace

void SystemCaret::Place(const std::optional<PixelRect>& box) {
  const PixelSize size =
      box ? PixelSize{CaretWidth(box->Width()), box->Height()} : size_.value_or(PixelSize{1, 1});
  if (size_ != size) {
    Remove();
    CreateCaret(window_, nullptr, static_cast<int>(size.width), static_cast<int>(size.height));
    ShowCaret(window_);
    size_ = size;
  }
  if (box)
    SetCaretPos(static_cast<int>(std::lround(box->left)), static_cast<int>(std::lround(box->top)));
  else
    SetCaretPos(kOutOfSight, kOutOfSight);
}

void SystemCaret::Remove() {
  if (size_) DestroyCaret();
  size_.reset();
}

}  // namespace lumenote
