// Maps each kind of control to its peer: one line here per kind, and a class of its own.

#include "backends/win32/peers/buttons/ButtonPeer.h"
#include "backends/win32/peers/buttons/ScrollBarPeer.h"
#include "backends/win32/peers/buttons/UpDownPeer.h"
#include "backends/win32/peers/edits/ComboBoxPeer.h"
#include "backends/win32/peers/edits/RichTextPeer.h"
#include "backends/win32/peers/edits/TextBoxPeer.h"
#include "backends/win32/peers/labels/FramePeer.h"
#include "backends/win32/peers/labels/LabelPeer.h"
#include "backends/win32/peers/labels/PictureBoxPeer.h"
#include "backends/win32/peers/labels/StatusBarPeer.h"
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
