#include "backends/qt/x11/X11Server.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace lumenote {

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using ReplyOwner = std::unique_ptr<Reply, Free>;

constexpr std::uint32_t kMaxWords = 4096;

ReplyOwner<xcb_get_property_reply_t> PropertyOf(xcb_connection_t* server, xcb_window_t window,
                                                xcb_atom_t property) {
  const auto asked = xcb_get_property(server, 0, window, property, XCB_ATOM_ANY, 0, kMaxWords);
  return ReplyOwner<xcb_get_property_reply_t>(xcb_get_property_reply(server, asked, nullptr));
}

}  // namespace

// The offscreen platform has a connection as well, but no stacking order.
X11Server::X11Server() {
  if (QGuiApplication::platformName() != u"xcb") return;
  const auto* desktop = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (desktop) connection_ = desktop->connection();
}

xcb_window_t X11Server::Root() const {
  return xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
}

xcb_atom_t X11Server::AtomOf(std::string_view name) const {
  const auto asked =
      xcb_intern_atom(connection_, 1, static_cast<std::uint16_t>(name.size()), name.data());
  const ReplyOwner<xcb_intern_atom_reply_t> reply(
      xcb_intern_atom_reply(connection_, asked, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> X11Server::ListOf(xcb_window_t window, std::string_view property) const {
  const auto reply = PropertyOf(connection_, window, AtomOf(property));
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + xcb_get_property_value_length(reply.get()) / 4};
}

std::string X11Server::TextOf(xcb_window_t window, std::string_view property) const {
  const auto reply = PropertyOf(connection_, window, AtomOf(property));
  if (!reply || reply->format != 8) return {};
  const auto* first = static_cast<const char*>(xcb_get_property_value(reply.get()));
  return {first, static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool X11Server::IsViewable(xcb_window_t window) const {
  const ReplyOwner<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, window), nullptr));
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void X11Server::KeepAbove(xcb_window_t window, xcb_window_t owner) const {
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_TRANSIENT_FOR,
                      XCB_ATOM_WINDOW, 32, 1, &owner);
  xcb_flush(connection_);
}

void X11Server::SendDelete(xcb_window_t window) const {
  xcb_client_message_event_t event = {};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = AtomOf("WM_PROTOCOLS");
  event.data.data32[0] = AtomOf("WM_DELETE_WINDOW");
  event.data.data32[1] = XCB_CURRENT_TIME;
  xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

}  // namespace lumenote
