// Maps each kind of control to its peer: one line here per kind, and a class of its own.
#include <stdexcept>

#include "backends/qt/peers/ButtonPeer.h"
#include "backends/qt/peers/ComboBoxPeer.h"
#include "backends/qt/peers/FramePeer.h"
#include "backends/qt/peers/LabelPeer.h"
#include "backends/qt/peers/PictureBoxPeer.h"
#include "backends/qt/peers/RichTextPeer.h"
#include "backends/qt/peers/ScrollBarPeer.h"
#include "backends/qt/peers/StatusBarPeer.h"
#include "backends/qt/peers/TextBoxPeer.h"
#include "backends/qt/peers/UpDownPeer.h"

namespace lumenote {

namespace {

using Maker = std::unique_ptr<ControlPeer> (*)(Control&, QWidget&, LayouterSource&);

template <class Kind, class Peer>
std::unique_ptr<ControlPeer> Make(Control& control, QWidget& parent, LayouterSource& layouters) {
  auto* kind = dynamic_cast<Kind*>(&control);
  return kind ? std::make_unique<Peer>(*kind, parent, layouters) : nullptr;
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

std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, QWidget& parent,
                                             LayouterSource& layouters) {
  for (const Maker make : kMakers) {
    auto peer = make(control, parent, layouters);
    if (!peer) continue;
    for (const Property property : kAllOfAControl) peer->Update(property);
    return peer;
  }
  throw std::logic_error("no widget for the control " + control.Name());
}

}  // namespace lumenote
