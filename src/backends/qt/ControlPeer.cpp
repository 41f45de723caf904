#include "backends/qt/ControlPeer.h"

#include <QMouseEvent>

#include "backends/qt/MouseButtons.h"
#include "backends/qt/Units.h"
#include "forms/Form.h"

namespace lumenote {

ControlPeer::ControlPeer(Control& control, QWidget& widget) : control_(control), widget_(&widget) {
  widget.installEventFilter(this);
}

ControlPeer::~ControlPeer() {
  if (widget_) widget_->removeEventFilter(this);
}

void ControlPeer::Update(Property property) {
  if (property == Property::Geometry && !IsDocked())
    widget_->setGeometry(ToPixels(control_.Place()));
  if (property == Property::Visible) widget_->setVisible(control_.Visible());
  if (property == Property::Enabled) widget_->setEnabled(control_.Enabled());
}

void ControlPeer::Compare(DifferenceList& differences) const {
  const QWidget* parent = widget_->parentWidget();
  differences.Check(control_, "Visible", widget_->isVisibleTo(parent) == control_.Visible());
  differences.Check(control_, "Enabled", widget_->isEnabledTo(parent) == control_.Enabled());
  if (!IsDocked())
    differences.Check(control_, "Place", widget_->geometry() == ToPixels(control_.Place()));
}

bool ControlPeer::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusIn) control_.Owner().ActiveControl(&control_);
  if (event->type() != QEvent::MouseButtonRelease || !PassesMouse()) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const QPointF at = mouse.position();
  control_.UserMouseUp({ButtonOf(mouse.button()), {ToTwips(at.x()), ToTwips(at.y())}});
  return false;
}

}  // namespace lumenote
