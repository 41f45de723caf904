#include "backends/qt/peers/TextBoxPeer.h"

#include "backends/qt/toolkit/LineEdits.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

TextBoxPeer::TextBoxPeer(TextBox& box, QWidget& parent, LayouterSource&)
    : TextBoxPeer(box, new QLineEdit(&parent)) {}

TextBoxPeer::TextBoxPeer(TextBox& box, QLineEdit* widget)
    : ControlPeer(box, *widget), box_(box), widget_(*widget) {
  GiveFrenchMenu(widget_);
  connect(widget, &QLineEdit::textEdited, this,
          [this](const QString& text) { box_.UserEdited(FromQString(text), SelectedIn(widget_)); });
}

void TextBoxPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Content) ShowText(widget_, box_.Text());
  if (property == Property::Locked) widget_.setReadOnly(box_.Locked());
}

void TextBoxPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(box_, "Text", widget_.text() == ToQString(box_.Text()));
  differences.Check(box_, "Locked", widget_.isReadOnly() == box_.Locked());
}

}  // namespace lumenote
