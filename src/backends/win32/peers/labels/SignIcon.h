// The status bar's sign as an icon of the system.
#pragma once
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "forms/values/StatusSign.h"

namespace lumenote {

struct IconDeletion {
  void operator()(HICON icon) const { DestroyIcon(icon); }
};
using SignIcon = GdiOwner<HICON, IconDeletion>;

/// Drawn in a square of `side` pixels; none for no sign.
SignIcon MakeSignIcon(StatusSign sign, int side, COLORREF ink);

}  // namespace lumenote
