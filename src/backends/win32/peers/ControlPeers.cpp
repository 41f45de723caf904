// Maps each kind of control to its peer: one line here per kind, and a class of its own.

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
#include "forms/controls/PeerTable.h"

namespace lumenote {
namespace {

using Peers = PeerTable<ControlPeer, HWND, PeerHost&>;

constexpr Peers::Maker kPeers[] = {
    Peers::Make<Button, ButtonPeer>,         Peers::Make<CheckBox, CheckBoxPeer>,
    Peers::Make<ComboBox, ComboBoxPeer>,     Peers::Make<Frame, FramePeer>,
    Peers::Make<Label, LabelPeer>,           Peers::Make<OptionButton, OptionButtonPeer>,
    Peers::Make<PictureBox, PictureBoxPeer>, Peers::Make<RichTextBox, RichTextPeer>,
    Peers::Make<ScrollBar, ScrollBarPeer>,   Peers::Make<StatusBar, StatusBarPeer>,
    Peers::Make<TextBox, TextBoxPeer>,       Peers::Make<UpDown, UpDownPeer>,
};

}  // namespace

std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, HWND parent, PeerHost& host) {
  return Peers::Realise(kPeers, control, parent, host);
}

}  // namespace lumenote
