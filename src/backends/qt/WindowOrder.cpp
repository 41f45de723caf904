#include "backends/qt/WindowOrder.h"

#include <vector>

#include "backends/qt/X11Server.h"

namespace lumenote {

namespace {

bool IsPanel(const X11Server& server, xcb_window_t window) {
  const xcb_atom_t panel = server.AtomOf("_NET_WM_WINDOW_TYPE_DOCK");
  for (const std::uint32_t type : server.ListOf(window, "_NET_WM_WINDOW_TYPE"))
    if (type == panel) return true;
  return false;
}

}  // namespace

std::optional<bool> IsTopmostOnDesktop(const QWidget& window) {
  const X11Server server;
  if (!server.IsConnected()) return {};
  const std::vector<std::uint32_t> upwards =
      server.ListOf(server.Root(), "_NET_CLIENT_LIST_STACKING");
  for (auto above = upwards.rbegin(); above != upwards.rend(); ++above) {
    if (*above == window.winId()) return true;
    if (!IsPanel(server, *above)) return false;
  }
  return {};
}

}  // namespace lumenote
