#include "backends/qt/view/DropReceipt.h"

#include <QCoreApplication>

#include "backends/qt/x11/X11Server.h"

namespace lumenote {

namespace {
constexpr std::uint8_t kSentByClient = 0x80;
}

DropReceipt::DropReceipt() {
  const X11Server server;
  if (!server.IsConnected()) return;
  finished_ = server.AtomOf("XdndFinished");
  moving_ = server.AtomOf("XdndActionMove");
  QCoreApplication::instance()->installNativeEventFilter(this);
}

DropReceipt::~DropReceipt() {
  if (auto* application = QCoreApplication::instance()) application->removeNativeEventFilter(this);
}

// The message contains the target, whether it accepted, and the action it performed.
bool DropReceipt::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_client_message_event_t*>(message);
  if ((event->response_type & ~kSentByClient) != XCB_CLIENT_MESSAGE || event->type != finished_)
    return false;
  ++told_;
  move_ = (event->data.data32[1] & 1) && event->data.data32[2] == moving_;
  return false;
}

}  // namespace lumenote
