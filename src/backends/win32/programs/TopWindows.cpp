#include "backends/win32/programs/TopWindows.h"

#include <algorithm>
#include <functional>
#include <string>

#include "backends/win32/files/WideNames.h"
#include "backends/win32/system/System.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

using Visitor = std::function<void(HWND window, pid_t process)>;

BOOL CALLBACK Visit(HWND window, LPARAM visitor) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const bool another = process != GetCurrentProcessId();
  if (another && IsWindowVisible(window))
    (*reinterpret_cast<const Visitor*>(visitor))(window, static_cast<pid_t>(process));
  return TRUE;
}

/// Goes through the visible top-level windows of other programs.
void ForEachWindow(const Visitor& visitor) {
  EnumWindows(Visit, reinterpret_cast<LPARAM>(&visitor));
}

/// Asks no window that hangs.
std::u16string TitleOf(HWND window) {
  wchar_t title[512];
  return FromWide(
      {title, static_cast<std::size_t>(std::max(InternalGetWindowText(window, title, 512), 0))});
}

}  // namespace

bool TopWindows::AskToClose(const std::vector<pid_t>& processes) {
  bool asked = false;
  ForEachWindow([&](HWND window, pid_t process) {
    if (std::find(processes.begin(), processes.end(), process) == processes.end()) return;
    if (PostMessageW(window, WM_CLOSE, 0, 0)) asked = true;
  });
  return asked;
}

bool TopWindows::AnyTitleContains(std::string_view text) const {
  const std::u16string wanted = FromUtf8(text);
  bool found = false;
  ForEachWindow([&](HWND window, pid_t) {
    found = found || TitleOf(window).find(wanted) != std::u16string::npos;
  });
  return found;
}

}  // namespace lumenote
