#include "backends/qt/peers/PictureBoxPeer.h"

namespace lumenote {

PictureBoxPeer::PictureBoxPeer(PictureBox& box, QWidget& parent, LayouterSource&)
    : PictureBoxPeer(box, new QFrame(&parent)) {}

PictureBoxPeer::PictureBoxPeer(PictureBox& box, QFrame* frame) : ControlPeer(box, *frame) {
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  frame->setFocusPolicy(Qt::StrongFocus);
}

}  // namespace lumenote
