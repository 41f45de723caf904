// The peer of sunken containers.
#pragma once

#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/labels/PictureBox.h"

namespace lumenote {

class PictureBoxPeer final : public ControlPeer {
 public:
  PictureBoxPeer(PictureBox& box, QWidget& parent, LayouterSource&);
};

}  // namespace lumenote
