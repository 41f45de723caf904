#include "backends/qt/peers/PictureBoxPeer.h"

#include <QFrame>

#include "backends/qt/toolkit/Spoken.h"

namespace lumenote {

namespace {

class SunkenFrame final : public QFrame, public Spoken {
 public:
  explicit SunkenFrame(QWidget& parent) : QFrame(&parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
  }
  QAccessible::Role Role() const override { return QAccessible::Grouping; }
};

}  // namespace

PictureBoxPeer::PictureBoxPeer(PictureBox& box, QWidget& parent, LayouterSource&)
    : ControlPeer(box, *new SunkenFrame(parent)) {}

}  // namespace lumenote
