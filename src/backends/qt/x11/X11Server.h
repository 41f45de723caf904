// Questions to the X server, beside what the toolkit asks.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace lumenote {

/// A view of the connection that the toolkit holds, valid as long as the application object.
/// Windows of others may vanish at any time: what is asked of them is then empty.
class X11Server {
 public:
  /// Without a connection where windows are not X11's.
  X11Server();

  bool IsConnected() const { return connection_ != nullptr; }
  xcb_window_t Root() const;
  xcb_atom_t AtomOf(std::string_view name) const;
  /// A property that is a list of windows, atoms or numbers; empty when it is not set.
  std::vector<std::uint32_t> ListOf(xcb_window_t window, std::string_view property) const;
  /// A property that is a text, as it is coded; empty when it is not set.
  std::string TextOf(xcb_window_t window, std::string_view property) const;
  /// Whether it and all that it stands in are mapped.
  bool IsViewable(xcb_window_t window) const;
  /// Sends a window the protocol message that its close box sends.
  void SendDelete(xcb_window_t window) const;

 private:
  xcb_connection_t* connection_ = nullptr;
};

}  // namespace lumenote
