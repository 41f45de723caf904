#include "backends/win32/windows/menus/MenuFilter.h"

#include <new>

namespace lumenote {
namespace {

thread_local MenuFilter* standing = nullptr;

/// The place of the lit entry; -1 if none is.
int LitPlace(HMENU list) {
  for (int place = GetMenuItemCount(list) - 1; place >= 0; --place)
    if (GetMenuState(list, static_cast<UINT>(place), MF_BYPOSITION) & MF_HILITE) return place;
  return -1;
}

}  // namespace

MenuFilter::MenuFilter(std::function<bool(const MSG&)> takes)
    : takes_(std::move(takes)),
      hook_(SetWindowsHookExW(WH_MSGFILTER, &Hear, nullptr, GetCurrentThreadId())) {
  standing = this;
}

MenuFilter::~MenuFilter() {
  standing = nullptr;
  UnhookWindowsHookEx(hook_);
}

LRESULT CALLBACK MenuFilter::Hear(int code, WPARAM w, LPARAM l) {
  const bool taken =
      code == MSGF_MENU && standing && standing->Takes(*reinterpret_cast<const MSG*>(l));
  return taken ? TRUE : CallNextHookEx(nullptr, code, w, l);
}

bool MenuFilter::Takes(const MSG& message) const {
  try {
    return takes_(message);
  } catch (const std::bad_alloc&) {
    return false;
  }
}

bool ArrowLeaves(HMENU root, bool forward) {
  const int lit = LitPlace(root);
  const HMENU inner = lit < 0 ? nullptr : GetSubMenu(root, lit);
  if (!inner) return true;
  const bool inside = LitPlace(inner) >= 0;
  if (forward && inside) return ArrowLeaves(inner, true);
  if (forward) return (GetMenuState(root, static_cast<UINT>(lit), MF_BYPOSITION) & MF_GRAYED) != 0;
  return !inside;
}

}  // namespace lumenote
