#include "control/Component.h"

#include "lumenote/Platform.h"

namespace lumenote {

Component::Component(Platform& platform)
    : temp(platform.SpecialFolders().MakeTemp()),
      windows(platform),
      editor([this] { return MakeEditor(); }) {}

std::unique_ptr<Co_Rtf> Component::MakeEditor() {
  auto window = std::make_unique<Co_Rtf>(windows, session, *temp, outstandingWork);
  window->HostWindow(hostWindow);
  window->Unloaded = [this, own = session] {
    own->closed = true;           // an abandoned editor has not done so
    const auto handler = closed;  // the host may destroy the control in it
    if (handler) handler();
  };
  return window;
}

}  // namespace lumenote
