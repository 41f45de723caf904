#include "backends/qt/peers/ControlPeer.h"

#include <QMouseEvent>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/KeptFont.h"
#include "backends/qt/toolkit/MouseButtons.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "base/Twips.h"
#include "forms/Form.h"
#include "forms/controls/SpokenName.h"

namespace lumenote {

namespace {
constexpr int kWheelNotch = 120;  // eighths of a degree
}  // namespace

ControlPeer::ControlPeer(Control& control, QWidget& widget) : control_(control), widget_(&widget) {
  widget.installEventFilter(this);
  widget.setMouseTracking(true);
  widget.setAttribute(Qt::WA_NoMousePropagation);  // events over the control are not the window's
}

ControlPeer::~ControlPeer() {
  if (widget_) widget_->removeEventFilter(this);
}

void ControlPeer::Update(Property property) {
  if (property == Property::Geometry && !IsDocked())
    widget_->setGeometry(ToPixels(control_.Bounds()));
  if (property == Property::Visible) widget_->setVisible(control_.Visible());
  if (property == Property::Order) widget_->raise();
  if (property == Property::Font) ShowFont();
  if (property == Property::Enabled) widget_->setEnabled(control_.Enabled());
  if (property == Property::SpokenName) ShowName();
}

void ControlPeer::ShowName() { widget_->setAccessibleName(ToQString(SpokenNameOf(control_))); }

void ControlPeer::Compare(DifferenceList& differences) const {
  const QWidget* parent = widget_->parentWidget();
  differences.Check(control_, "Visible", widget_->isVisibleTo(parent) == control_.Visible());
  differences.Check(control_, "Enabled", widget_->isEnabledTo(parent) == control_.Enabled());
  if (!IsDocked())
    differences.Check(control_, "Bounds", widget_->geometry() == ToPixels(control_.Bounds()));
}

void ControlPeer::ShowFont() {
  QFont font = ControlFont();
  if (!control_.FontName().empty()) font.setFamily(MachineFamily({control_.FontName()}));
  if (control_.FontSize() > 0)
    font.setPixelSize(RoundToPixel(control_.FontSize() * kTwipsPerPoint));
  KeepFont(*widget_, font);
}

bool ControlPeer::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusIn) control_.Owner().ActiveControl(&control_);
  if (!PassesMouse()) return false;
  if (event->type() == QEvent::Wheel) return PassWheel(static_cast<const QWheelEvent&>(*event));
  if (const auto* mouse = dynamic_cast<const QMouseEvent*>(event)) PassMouse(*mouse);
  return false;
}

// A fine wheel turns by parts of a notch.
bool ControlPeer::PassWheel(const QWheelEvent& wheel) {
  turned_ -= wheel.angleDelta().y();
  const int notches = turned_ / kWheelNotch;
  turned_ %= kWheelNotch;
  return notches != 0 && control_.UserMouseWheel(notches);
}

// Any event may close the window and destroy the peer.
void ControlPeer::PassMouse(const QMouseEvent& mouse) {
  const QPointer<ControlPeer> self = this;
  const QPointF at = mouse.position();
  const MouseEvent event{ButtonOf(mouse.button()), {ToTwips(at.x()), ToTwips(at.y())}};
  const bool clicks =
      ClicksByMouse() && mouse.button() == Qt::LeftButton && QRectF(widget_->rect()).contains(at);
  if (mouse.type() == QEvent::MouseMove) control_.UserMouseMove(event);
  if (mouse.type() == QEvent::MouseButtonDblClick) control_.UserDoubleClick();
  if (mouse.type() != QEvent::MouseButtonRelease) return;
  control_.UserMouseUp(event);
  if (self && clicks) control_.UserClick();
}

}  // namespace lumenote
