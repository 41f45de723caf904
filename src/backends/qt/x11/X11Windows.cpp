#include "backends/qt/x11/X11Windows.h"

#include <QString>
#include <QSysInfo>
#include <algorithm>
#include <unistd.h>

#include "backends/qt/x11/X11Server.h"

namespace lumenote {

namespace {

std::vector<xcb_window_t> Listed(const X11Server& server) {
  if (!server.IsConnected()) return {};
  return server.ListOf(server.Root(), "_NET_CLIENT_LIST");
}

/// The process that owns a window; 0 if unknown or on another machine.
pid_t ProcessOf(const X11Server& server, xcb_window_t window) {
  if (server.TextOf(window, "WM_CLIENT_MACHINE") != QSysInfo::machineHostName().toStdString())
    return 0;
  const std::vector<std::uint32_t> numbers = server.ListOf(window, "_NET_WM_PID");
  return numbers.empty() ? 0 : static_cast<pid_t>(numbers.front());
}

bool CanBeAsked(const X11Server& server, xcb_window_t window) {
  const std::vector<std::uint32_t> protocols = server.ListOf(window, "WM_PROTOCOLS");
  const xcb_atom_t deletion = server.AtomOf("WM_DELETE_WINDOW");
  return std::find(protocols.begin(), protocols.end(), deletion) != protocols.end();
}

}  // namespace

bool X11Windows::AskToClose(const std::vector<pid_t>& processes) {
  const X11Server server;
  bool asked = false;
  for (const xcb_window_t window : Listed(server)) {
    const pid_t process = ProcessOf(server, window);
    const bool wanted = std::find(processes.begin(), processes.end(), process) != processes.end();
    if (!wanted || !CanBeAsked(server, window)) continue;
    server.SendDelete(window);
    asked = true;
  }
  return asked;
}

bool X11Windows::AnyTitleContains(std::string_view text) const {
  const X11Server server;
  const std::vector<xcb_window_t> windows = Listed(server);
  return std::any_of(windows.begin(), windows.end(), [&](xcb_window_t window) {
    return server.TextOf(window, "_NET_WM_NAME").find(text) != std::string::npos &&
           ProcessOf(server, window) != getpid();
  });
}

}  // namespace lumenote
