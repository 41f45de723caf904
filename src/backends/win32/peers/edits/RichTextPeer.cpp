#include "backends/win32/peers/edits/RichTextPeer.h"

#include "surface/DocumentSurface.h"

namespace lumenote {
namespace {

std::shared_ptr<SurfaceWindow> MakeWindow(RichTextBox& box, HWND parent, PeerHost& host) {
  ViewCallbacks callbacks = CallbacksOf(box);
  callbacks.key = [&box, &host](const KeyStroke& key) { return host.UnusedKey(box, key); };
  auto& surface = dynamic_cast<DocumentSurface&>(box.Surface());
  return std::make_shared<SurfaceWindow>(parent, surface, host.LayouterOf(box),
                                         std::move(callbacks));
}

}  // namespace

RichTextPeer::RichTextPeer(RichTextBox& box, HWND parent, PeerHost& host)
    : RichTextPeer(box, MakeWindow(box, parent, host), host) {}

RichTextPeer::RichTextPeer(RichTextBox& box, std::shared_ptr<SurfaceWindow> window, PeerHost& host)
    : ControlPeer(box, window, host), box_(box), window_(*window) {}

RichTextPeer::~RichTextPeer() { window_.Detach(); }

// Only the newest mode of a host's makes the system tell child windows.
void RichTextPeer::Rescale() {
  Tell(WM_DPICHANGED_AFTERPARENT);
  ControlPeer::Rescale();
}

void RichTextPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  for (const std::string& difference : window_.Differences()) differences.Add(box_, difference);
}

}  // namespace lumenote
