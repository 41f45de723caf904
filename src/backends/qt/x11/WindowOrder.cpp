#include "backends/qt/x11/WindowOrder.h"

#include <algorithm>
#include <vector>

#include "backends/qt/x11/X11Server.h"

namespace lumenote {

namespace {

bool Says(const X11Server& server, xcb_window_t window, const char* property, const char* value) {
  const xcb_atom_t wanted = server.AtomOf(value);
  const std::vector<std::uint32_t> values = server.ListOf(window, property);
  return wanted != XCB_ATOM_NONE && std::ranges::find(values, wanted) != values.end();
}

/// Window managers unmap minimised windows and those of other desktops, or mark them hidden.
bool IsInSight(const X11Server& server, xcb_window_t window) {
  return server.IsViewable(window) &&
         !Says(server, window, "_NET_WM_STATE", "_NET_WM_STATE_HIDDEN");
}

bool IsPanel(const X11Server& server, xcb_window_t window) {
  return Says(server, window, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK");
}

}  // namespace

std::optional<bool> IsTopmostOnDesktop(const QWidget& window) {
  const X11Server server;
  if (!server.IsConnected()) return {};
  const std::vector<std::uint32_t> upwards =
      server.ListOf(server.Root(), "_NET_CLIENT_LIST_STACKING");
  for (auto above = upwards.rbegin(); above != upwards.rend(); ++above) {
    if (*above == window.winId()) return true;
    if (IsInSight(server, *above) && !IsPanel(server, *above)) return false;
  }
  return {};
}

}  // namespace lumenote
