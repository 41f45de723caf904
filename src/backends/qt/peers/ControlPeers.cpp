// Maps each kind of control to its peer: one line here per kind, and a class of its own.

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
#include "forms/controls/PeerTable.h"

namespace lumenote {

namespace {

using Peers = PeerTable<ControlPeer, QWidget&, LayouterSource&>;

constexpr Peers::Maker kPeers[] = {
    Peers::Make<Button, ButtonPeer>,         Peers::Make<CheckBox, CheckBoxPeer>,
    Peers::Make<ComboBox, ComboBoxPeer>,     Peers::Make<Frame, FramePeer>,
    Peers::Make<Label, LabelPeer>,           Peers::Make<OptionButton, OptionButtonPeer>,
    Peers::Make<PictureBox, PictureBoxPeer>, Peers::Make<RichTextBox, RichTextPeer>,
    Peers::Make<ScrollBar, ScrollBarPeer>,   Peers::Make<StatusBar, StatusBarPeer>,
    Peers::Make<TextBox, TextBoxPeer>,       Peers::Make<UpDown, UpDownPeer>,
};

}  // namespace

std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, QWidget& parent,
                                             LayouterSource& layouters) {
  return Peers::Realise(kPeers, control, parent, layouters);
}

}  // namespace lumenote
