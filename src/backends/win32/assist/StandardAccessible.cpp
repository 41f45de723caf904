#include "backends/win32/assist/StandardAccessible.h"

namespace lumenote {

StandardAccessible::StandardAccessible(HWND window) {
  void* made = nullptr;
  CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible), &made);
  rest_.reset(static_cast<IAccessible*>(made));
}

LRESULT StandardAccessible::Answer(WPARAM w) {
  return rest_ ? LresultFromObject(__uuidof(IAccessible), w, this) : 0;
}

}  // namespace lumenote
