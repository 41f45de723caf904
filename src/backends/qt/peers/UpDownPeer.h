// The peer of spinners.
#pragma once
#include <QToolButton>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/SpokenWidget.h"
#include "forms/controls/buttons/UpDown.h"

namespace lumenote {

/// Two auto-repeating buttons, one above the other.
class UpDownWidget : public SpokenWidget {
 public:
  explicit UpDownWidget(QWidget* parent);

  QAccessible::Role Role() const override { return QAccessible::SpinBox; }
  QToolButton& Arrow(bool up) { return up ? up_ : down_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QToolButton up_{this};
  QToolButton down_{this};
};

class UpDownPeer final : public ControlPeer {
 public:
  UpDownPeer(UpDown& spinner, QWidget& parent, LayouterSource&);

 private:
  UpDownPeer(UpDown& spinner, UpDownWidget* widget);
};

}  // namespace lumenote
