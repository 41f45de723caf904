// Requests to the X server that Qt does not offer.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace lumenote {

/// Uses Qt's connection, which lives as long as the application object. Windows of other programs
/// may vanish at any time; requests about them then return nothing.
class X11Server {
 public:
  /// Without a connection on other platforms than X11.
  X11Server();

  bool IsConnected() const { return connection_ != nullptr; }
  xcb_window_t Root() const;
  xcb_atom_t AtomOf(std::string_view name) const;
  /// A property that is a list of windows, atoms or numbers; empty if unset.
  std::vector<std::uint32_t> ListOf(xcb_window_t window, std::string_view property) const;
  /// A text property in its own encoding; empty if unset.
  std::string TextOf(xcb_window_t window, std::string_view property) const;
  /// Whether it and all its ancestors are mapped.
  bool IsViewable(xcb_window_t window) const;
  /// Tells the window manager to keep a window above `owner`.
  void KeepAbove(xcb_window_t window, xcb_window_t owner) const;
  /// Sends the protocol message of a close box.
  void SendDelete(xcb_window_t window) const;

 private:
  xcb_connection_t* connection_ = nullptr;
};

}  // namespace lumenote
