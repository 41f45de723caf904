#include "backends/qt/peers/ComboBoxPeer.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "backends/qt/peers/AccessibleCombo.h"
#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/LineEdits.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

constexpr int kRows = 12;  // of the open list

/// Opens a list without editing as any other, not over the whole screen.
class ListStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// Keys that Qt would step through a closed list with.
bool IsStep(const QKeyEvent& key, bool editable) {
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return !(key.modifiers() & Qt::ControlModifier);
    case Qt::Key_Home:
    case Qt::Key_End:
      return !editable;
    default:
      return false;
  }
}

}  // namespace

ComboBoxWidget::ComboBoxWidget(ComboBox& combo, QWidget* parent)
    : QComboBox(parent), combo_(&combo) {
  setEditable(combo.Style() == ComboStyle::Editable);
  setInsertPolicy(QComboBox::NoInsert);
  setDuplicatesEnabled(true);
  setMaxVisibleItems(kRows);
  auto* style = new ListStyle;
  style->setParent(this);
  setStyle(style);
  if (isEditable()) KeepTextApart();
}

// By default Qt takes finished text, or text equal to an entry, for a choice.
void ComboBoxWidget::KeepTextApart() {
  setCompleter(nullptr);
  GiveFrenchMenu(*lineEdit());
  disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
}

void ComboBoxWidget::showPopup() {
  if (combo_) combo_->UserDrop();
  if (!combo_) return;
  QComboBox::showPopup();
  view()->setCurrentIndex(model()->index(findText(currentText(), Qt::MatchExactly), modelColumn()));
}

QAccessibleInterface* ComboBoxWidget::MakeInterface(QWidget&) {
  return new AccessibleCombo(*this, *this);
}

// Qt tells that the box has the focus, right after this; it is its line that the user types into.
void ComboBoxWidget::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (!isEditable() || !QAccessible::isActive()) return;
  QMetaObject::invokeMethod(
      lineEdit(),
      [line = lineEdit()] {
        QAccessibleEvent focus(line, QAccessible::Focus);
        if (line->hasFocus()) QAccessible::updateAccessibility(&focus);
      },
      Qt::QueuedConnection);
}

void ComboBoxWidget::keyPressEvent(QKeyEvent* event) {
  const QString text = isEditable() ? QString() : TypedText(*event);
  const bool search = !text.isEmpty() && event->key() != Qt::Key_Space;
  if (!search && !IsStep(*event, isEditable())) return QComboBox::keyPressEvent(event);
  const QPointer<ComboBoxWidget> self = this;
  showPopup();
  if (self && search) view()->keyboardSearch(text);
}

void ComboBoxWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

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

void ComboBoxPeer::ShowName() {
  ControlPeer::ShowName();
  const QString name = widget_->accessibleName();
  widget_->view()->setAccessibleName(name);
  if (QLineEdit* line = widget_->lineEdit()) line->setAccessibleName(name);
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
