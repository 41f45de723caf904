#include "backends/qt/ComboBoxPeer.h"

#include <QSignalBlocker>

#include "backends/qt/LineEdits.h"
#include "backends/qt/QtText.h"

namespace lumenote {

ComboBoxWidget::ComboBoxWidget(ComboBox& combo, QWidget* parent)
    : QComboBox(parent), combo_(&combo) {
  setEditable(combo.Style() == ComboStyle::Editable);
  setInsertPolicy(QComboBox::NoInsert);
  setDuplicatesEnabled(true);
  if (isEditable()) setCompleter(nullptr);
}

void ComboBoxWidget::showPopup() {
  if (combo_) combo_->UserDrop();
  if (combo_) QComboBox::showPopup();
}

ComboBoxPeer::ComboBoxPeer(ComboBox& combo, QWidget& parent, LayouterSource&)
    : ComboBoxPeer(combo, new ComboBoxWidget(combo, &parent)) {}

ComboBoxPeer::ComboBoxPeer(ComboBox& combo, ComboBoxWidget* widget)
    : ControlPeer(combo, *widget), combo_(combo), widget_(widget) {
  connect(widget, &QComboBox::activated, this, [this](int index) { combo_.UserPick(index); });
  if (QLineEdit* line = widget->lineEdit())
    connect(line, &QLineEdit::textEdited, this, [this, line](const QString& text) {
      combo_.UserEdited(FromQString(text), SelectedIn(*line));
    });
}

ComboBoxPeer::~ComboBoxPeer() {
  if (widget_) widget_->Detach();
}

QStringList ComboBoxPeer::Entries() const {
  QStringList entries;
  for (const std::u16string& entry : combo_.List()) entries.push_back(ToQString(entry));
  return entries;
}

void ComboBoxPeer::ShowList() {
  const QSignalBlocker silent(*widget_);
  widget_->clear();
  widget_->addItems(Entries());
  ShowContent();
}

void ComboBoxPeer::ShowContent() {
  const QSignalBlocker silent(*widget_);
  widget_->setCurrentIndex(combo_.ListIndex());
  if (QLineEdit* line = widget_->lineEdit()) ShowText(*line, combo_.Text());
}

void ComboBoxPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::List) ShowList();
  if (property == Property::Content) ShowContent();
}

void ComboBoxPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  QStringList shown;
  for (int index = 0; index < widget_->count(); ++index) shown.push_back(widget_->itemText(index));
  differences.Check(combo_, "List", shown == Entries());
  differences.Check(combo_, "ListIndex", widget_->currentIndex() == combo_.ListIndex());
  if (widget_->isEditable())
    differences.Check(combo_, "Text", widget_->currentText() == ToQString(combo_.Text()));
}

}  // namespace lumenote
