#include "backends/qt/WindowOrder.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace lumenote {

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using ReplyOwner = std::unique_ptr<Reply, Free>;

constexpr std::uint32_t kMostWords = 4096;

xcb_atom_t AtomOf(xcb_connection_t* server, std::string_view name) {
  const auto asked =
      xcb_intern_atom(server, 1, static_cast<std::uint16_t>(name.size()), name.data());
  const ReplyOwner<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, asked, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// A property that is a list of windows or atoms; empty when it is not set.
std::vector<std::uint32_t> ListOf(xcb_connection_t* server, xcb_window_t window,
                                  std::string_view name) {
  const auto asked =
      xcb_get_property(server, 0, window, AtomOf(server, name), XCB_ATOM_ANY, 0, kMostWords);
  const ReplyOwner<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, asked, nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + xcb_get_property_value_length(reply.get()) / 4};
}

bool IsPanel(xcb_connection_t* server, xcb_window_t window) {
  const xcb_atom_t panel = AtomOf(server, "_NET_WM_WINDOW_TYPE_DOCK");
  for (const std::uint32_t type : ListOf(server, window, "_NET_WM_WINDOW_TYPE"))
    if (type == panel) return true;
  return false;
}

}  // namespace

// Windows that are only drawn into memory have a connection as well, but no place among the others.
std::optional<bool> IsTopmostOnDesktop(const QWidget& window) {
  if (QGuiApplication::platformName() != u"xcb") return {};
  const auto* desktop = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!desktop) return {};
  xcb_connection_t* server = desktop->connection();
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
  const std::vector<std::uint32_t> upwards = ListOf(server, root, "_NET_CLIENT_LIST_STACKING");
  for (auto above = upwards.rbegin(); above != upwards.rend(); ++above) {
    if (*above == window.winId()) return true;
    if (!IsPanel(server, *above)) return false;
  }
  return {};
}

}  // namespace lumenote
