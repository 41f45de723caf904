#include "backends/win32/peers/base/CaptionPeer.h"

#include "backends/win32/system/NativeText.h"

namespace lumenote {

CaptionPeer::CaptionPeer(CaptionedControl& control, std::shared_ptr<Window> window, PeerHost& host)
    : ControlPeer(control, std::move(window), host), control_(control) {}

void CaptionPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) SetWindowTextW(Handle(), Wide(control_.Caption()));
}

void CaptionPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(control_, "Caption", TextOf(Handle()) == control_.Caption());
}

}  // namespace lumenote
