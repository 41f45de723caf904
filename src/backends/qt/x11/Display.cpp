#include "backends/qt/x11/Display.h"

#include <QtGlobal>
#include <memory>
#include <xcb/xcb.h>

#include "base/RuntimeError.h"

namespace lumenote {

void RequireDisplay() {
  if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) return;
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return;
  const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection(
      xcb_connect(nullptr, nullptr), &xcb_disconnect);
  if (xcb_connection_has_error(connection.get()))
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Pas d'écran où ouvrir l'éditeur");
}

}  // namespace lumenote
