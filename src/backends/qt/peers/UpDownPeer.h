// The peer of spinners.
#pragma once
#include <QToolButton>
#include <functional>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/buttons/UpDown.h"

namespace lumenote {

/// Two auto-repeating buttons, one above the other.
class UpDownWidget : public SpokenWidget {
 public:
  explicit UpDownWidget(QWidget* parent);

  QAccessible::Role Role() const override { return QAccessible::SpinBox; }
  QAccessibleInterface* MakeInterface(QWidget&) override;
  QWidget* LabelledBy() const override { return label_; }
  void LabelledBy(QWidget& label) { label_ = &label; }
  QToolButton& Arrow(bool up) { return up ? up_ : down_; }
  /// The number that it steps, as it is written; null for none.
  using NumberText = std::function<QString()>;
  void Number(NumberText number) { number_ = std::move(number); }
  QString Number() const { return number_ ? number_() : QString(); }
  /// Presses an arrow.
  void Step(bool up);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QToolButton up_{this};
  QToolButton down_{this};
  QPointer<QWidget> label_;
  NumberText number_;
};

class UpDownPeer final : public ControlPeer {
 public:
  UpDownPeer(UpDown& spinner, QWidget& parent, LayouterSource&);

  // The label's own field is the box beside the spinner.
  void ShowLabel(QLabel& label) override { widget_.LabelledBy(label); }

 private:
  UpDownPeer(UpDown& spinner, UpDownWidget* widget);

  void Spin(bool up);

  UpDown& spinner_;
  UpDownWidget& widget_;
};

}  // namespace lumenote
