#include "backends/qt/peers/ButtonPeer.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

/// Makes the whole control clickable, not just indicator and caption.
template <class Native>
class FullyClickable : public Native {
 public:
  using Native::Native;

 protected:
  bool hitButton(const QPoint& at) const override { return this->rect().contains(at); }
};

QPushButton* MakePushButton(QWidget& parent) {
  auto* button = new QPushButton(&parent);
  button->setAutoDefault(true);  // Return clicks it while it has the focus
  return button;
}

// The form's option buttons handle exclusivity themselves, so a group of its own frees each of
// Qt's; to assistive programs Qt calls only an exclusive one an option button.
QRadioButton* MakeRadioButton(QWidget& parent) {
  auto* button = new FullyClickable<QRadioButton>(&parent);
  auto* alone = new QButtonGroup(button);
  alone->setExclusive(false);
  alone->addButton(button);
  return button;
}

}  // namespace

ButtonPeer::ButtonPeer(Button& button, QWidget& parent, LayouterSource&)
    : ButtonPeer(button, MakePushButton(parent)) {}

ButtonPeer::ButtonPeer(CaptionedControl& control, QAbstractButton* widget)
    : ControlPeer(control, *widget), control_(control), widget_(*widget) {
  connect(widget, &QAbstractButton::clicked, this, [this] {
    const QPointer<ButtonPeer> self = this;
    control_.UserClick();
    if (self) Update(Property::Value);
  });
}

void ButtonPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) widget_.setText(ToQString(control_.Caption()));
  if (property == Property::Value && widget_.isCheckable()) widget_.setChecked(IsChecked());
}

void ButtonPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(control_, "Caption", widget_.text() == ToQString(control_.Caption()));
  differences.Check(control_, "Value", widget_.isChecked() == IsChecked());
}

CheckBoxPeer::CheckBoxPeer(CheckBox& box, QWidget& parent, LayouterSource&)
    : ButtonPeer(box, new FullyClickable<QCheckBox>(&parent)), box_(box) {}

OptionButtonPeer::OptionButtonPeer(OptionButton& option, QWidget& parent, LayouterSource&)
    : ButtonPeer(option, MakeRadioButton(parent)), option_(option) {}

}  // namespace lumenote
