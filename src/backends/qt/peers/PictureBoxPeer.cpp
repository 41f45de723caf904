#include "backends/qt/peers/PictureBoxPeer.h"

#include <QFrame>

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/Spoken.h"

namespace lumenote {

namespace {

class SunkenFrame final : public QFrame, public Spoken {
 public:
  SunkenFrame(QWidget& parent, PictureBox& box) : QFrame(&parent), box_(box) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
  }
  QAccessible::Role Role() const override { return QAccessible::Grouping; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const auto key = StrokeOf(*event);
    if (!key || !box_.UserKey(*key)) QFrame::keyPressEvent(event);
  }

 private:
  PictureBox& box_;
};

}  // namespace

PictureBoxPeer::PictureBoxPeer(PictureBox& box, QWidget& parent, LayouterSource&)
    : ControlPeer(box, *new SunkenFrame(parent, box)) {}

}  // namespace lumenote
