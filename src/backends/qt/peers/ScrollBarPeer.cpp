#include "backends/qt/peers/ScrollBarPeer.h"

#include <QSignalBlocker>

namespace lumenote {

ScrollBarPeer::ScrollBarPeer(ScrollBar& bar, QWidget& parent, LayouterSource&)
    : ScrollBarPeer(bar, new QScrollBar(Qt::Vertical, &parent)) {}

ScrollBarPeer::ScrollBarPeer(ScrollBar& bar, QScrollBar* widget)
    : ControlPeer(bar, *widget), bar_(bar), widget_(*widget) {
  widget->setFocusPolicy(Qt::StrongFocus);
  connect(widget, &QScrollBar::valueChanged, this, [this](int value) { bar_.UserScroll(value); });
}

void ScrollBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property != Property::Value) return;
  const QSignalBlocker silent(widget_);
  widget_.setRange(bar_.Min(), bar_.Max());
  widget_.setValue(bar_.Value());
}

void ScrollBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(bar_, "Value", widget_.value() == bar_.Value());
  differences.Check(bar_, "Max", widget_.maximum() == bar_.Max());
}

}  // namespace lumenote
