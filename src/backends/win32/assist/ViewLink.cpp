#include "backends/win32/assist/ViewLink.h"

#include "backends/win32/toolkit/NativeText.h"

namespace lumenote {

std::u16string NameOf(HWND window) {
  const HWND label = GetWindow(window, GW_HWNDPREV);
  return TextOf(label ? label : GetAncestor(window, GA_ROOT));
}

}  // namespace lumenote
