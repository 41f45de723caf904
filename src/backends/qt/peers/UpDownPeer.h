// The peer of spinners.
#pragma once
#include <QToolButton>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/buttons/UpDown.h"

namespace lumenote {

/// Two auto-repeating buttons, one above the other.
class UpDownWidget : public SpokenWidget {
 public:
  explicit UpDownWidget(QWidget* parent);

  QAccessible::Role Role() const override { return QAccessible::SpinBox; }
  QWidget* LabelledBy() const override { return label_; }
  void LabelledBy(QWidget& label) { label_ = &label; }
  QToolButton& Arrow(bool up) { return up ? up_ : down_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QToolButton up_{this};
  QToolButton down_{this};
  QPointer<QWidget> label_;
};

class UpDownPeer final : public ControlPeer {
 public:
  UpDownPeer(UpDown& spinner, QWidget& parent, LayouterSource&);

  // The label's own field is the box beside the spinner.
  void ShowLabel(QLabel& label) override { widget_.LabelledBy(label); }

 private:
  UpDownPeer(UpDown& spinner, UpDownWidget* widget);

  UpDownWidget& widget_;
};

}  // namespace lumenote
