// What the user does while a native menu is open.
#pragma once
#include <functional>

#include "backends/win32/system/System.h"

namespace lumenote {

/// For a block, messages of an open menu of this thread go to `takes` first; what it takes does not
/// reach the menu. Does not nest: a thread has one open menu.
class MenuFilter {
 public:
  explicit MenuFilter(std::function<bool(const MSG&)> takes);
  ~MenuFilter();
  MenuFilter(const MenuFilter&) = delete;
  MenuFilter& operator=(const MenuFilter&) = delete;

 private:
  static LRESULT CALLBACK Hear(int code, WPARAM w, LPARAM l);
  /// What cannot be decided for lack of memory is the menu's.
  bool Takes(const MSG& message) const;

  std::function<bool(const MSG&)> takes_;
  HHOOK hook_;
};

/// Whether an arrow key leads out of the open list `root`: nothing opens or closes beside what is
/// lit.
bool ArrowLeaves(HMENU root, bool forward);

}  // namespace lumenote
