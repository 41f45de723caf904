// Maps each kind of control to its peer: one line here per kind, and a class of its own.
#include <stdexcept>

#include "backends/win32/peers/ButtonPeer.h"
#include "backends/win32/peers/ComboBoxPeer.h"
#include "backends/win32/peers/FramePeer.h"
#include "backends/win32/peers/LabelPeer.h"
#include "backends/win32/peers/PictureBoxPeer.h"
#include "backends/win32/peers/RichTextPeer.h"
#include "backends/win32/peers/ScrollBarPeer.h"
#include "backends/win32/peers/StatusBarPeer.h"
#include "backends/win32/peers/TextBoxPeer.h"
#include "backends/win32/peers/UpDownPeer.h"

namespace lumenote {
namespace {

using Maker = std::unique_ptr<ControlPeer> (*)(Control&, HWND, PeerHost&);

template <class Kind, class Peer>
std::unique_ptr<ControlPeer> Make(Control& control, HWND parent, PeerHost& host) {
  auto* kind = dynamic_cast<Kind*>(&control);
  return kind ? std::make_unique<Peer>(*kind, parent, host) : nullptr;
}

constexpr Maker kMakers[] = {
    Make<Button, ButtonPeer>,         Make<CheckBox, CheckBoxPeer>,
    Make<ComboBox, ComboBoxPeer>,     Make<Frame, FramePeer>,
    Make<Label, LabelPeer>,           Make<OptionButton, OptionButtonPeer>,
    Make<PictureBox, PictureBoxPeer>, Make<RichTextBox, RichTextPeer>,
    Make<ScrollBar, ScrollBarPeer>,   Make<StatusBar, StatusBarPeer>,
    Make<TextBox, TextBoxPeer>,       Make<UpDown, UpDownPeer>,
};

constexpr Property kAllOfAControl[] = {Property::Geometry, Property::Font,    Property::Caption,
                                       Property::Enabled,  Property::Checked, Property::Panels,
                                       Property::List,     Property::Content, Property::Value,
                                       Property::Locked,   Property::Visible};

}  // namespace

std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, HWND parent, PeerHost& host) {
  for (const Maker make : kMakers) {
    auto peer = make(control, parent, host);
    if (!peer) continue;
    for (const Property property : kAllOfAControl) peer->Update(property);
    return peer;
  }
  throw std::logic_error("no window for the control " + control.Name());
}

}  // namespace lumenote
