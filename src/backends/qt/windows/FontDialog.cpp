#include "backends/qt/windows/FontDialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QStyledItemDelegate>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/FrenchTexts.h"
#include "backends/qt/toolkit/QtText.h"
#include "view/layout/CharLook.h"

namespace lumenote {

namespace {

constexpr float kUsualSize = 10;  // points

QFont FontOf(const FontChoice& choice) {
  QFont font(MachineFamily({choice.name.value_or(u"")}));
  font.setPointSizeF(choice.size.value_or(kUsualSize));
  font.setBold(choice.bold.value_or(false));
  font.setItalic(choice.italic.value_or(false));
  font.setUnderline(choice.underline.value_or(false));
  font.setStrikeOut(choice.strike.value_or(false));
  return font;
}

FontChoice Changes(const QFont& before, const QFont& after) {
  FontChoice choice;
  if (after.family() != before.family()) choice.name = FromQString(WithoutFoundry(after.family()));
  if (after.pointSizeF() != before.pointSizeF())
    choice.size = static_cast<float>(after.pointSizeF());
  if (after.bold() != before.bold()) choice.bold = after.bold();
  if (after.italic() != before.italic()) choice.italic = after.italic();
  if (after.underline() != before.underline()) choice.underline = after.underline();
  if (after.strikeOut() != before.strikeOut()) choice.strike = after.strikeOut();
  return choice;
}

/// A style in French, or a family without its foundry.
QString ShownName(const QString& name) { return WithoutFoundry(InFrench(name)); }

/// Shows the names so; the dialog goes on knowing its own.
class ShownNames : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QString displayText(const QVariant& value, const QLocale&) const override {
    return ShownName(value.toString());
  }
};

/// Qt's font dialog in French, with a colour button; the sample is in that colour.
class ColouredFontDialog : public QFontDialog {
 public:
  ColouredFontDialog(const FontChoice& shown, QWidget* over)
      : QFontDialog(FontOf(shown), over),
        colour_(FromBgr(static_cast<std::uint32_t>(shown.colour.value_or(0)))) {
    setOption(QFontDialog::DontUseNativeDialog);
    setFont(ControlFont());
    setWindowTitle(QStringLiteral("Police"));
    HideWritingSystems();
    ShowNames();
    AddColour();
    ShowInFrench(*this);
    NameLists();
  }

  /// Empty until the user chooses one.
  std::optional<std::int32_t> Colour() const { return chosen_; }

 private:
  // Notes are in French; the list is in English.
  void HideWritingSystems() {
    for (auto* list : findChildren<QComboBox*>()) list->hide();
    for (auto* label : findChildren<QLabel*>())
      if (qobject_cast<QComboBox*>(label->buddy())) label->hide();
  }

  void ShowNames() {
    for (auto* list : findChildren<QListView*>()) {
      list->setItemDelegate(new ShownNames(list));
      HideTwins(*list);
    }
    for (auto* chosen : findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
      if (!chosen->isReadOnly()) continue;
      const auto translate = [chosen] { chosen->setText(ShownName(chosen->text())); };
      connect(chosen, &QLineEdit::textChanged, chosen, translate);
      translate();
    }
  }

  // The same family of several foundries looks like one.
  static void HideTwins(QListView& list) {
    const auto name = [&](int row) {
      return ShownName(list.model()->index(row, 0).data().toString());
    };
    for (int row = 1; row < list.model()->rowCount(); ++row)
      list.setRowHidden(row, name(row) == name(row - 1));
  }

  // A label, a line that shows what is chosen, and a list lie below each other. Qt lets two of the
  // lines have the focus of their lists: to assistive programs both would have it.
  void NameLists() {
    const auto* grid = qobject_cast<QGridLayout*>(layout());
    for (int column = 0; grid && column < grid->columnCount(); ++column) {
      const auto part = [&](int row) {
        QLayoutItem* item = grid->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
      };
      const auto* label = qobject_cast<QLabel*>(part(0));
      if (!label || !part(1) || !part(2)) continue;
      for (const int row : {1, 2}) part(row)->setAccessibleName(label->text().remove(u'&'));
      if (!part(1)->focusProxy()) continue;
      part(1)->setFocusProxy(nullptr);
      part(1)->setFocusPolicy(Qt::NoFocus);
    }
  }

  void AddColour() {
    auto* button = new QPushButton(QStringLiteral("C&ouleur..."), this);
    connect(button, &QPushButton::clicked, this, [this] { ChooseColour(); });
    const auto* effect = findChild<QCheckBox*>();
    if (effect && effect->parentWidget()->layout())
      effect->parentWidget()->layout()->addWidget(button);
    else
      layout()->addWidget(button);
    ShowColour();
  }

  void ShowColour() {
    for (auto* frame : findChildren<QGroupBox*>())
      for (auto* sample : frame->findChildren<QLineEdit*>()) {
        QPalette palette = sample->palette();
        const std::uint32_t ground = ToBgr(palette.color(QPalette::Base));
        palette.setColor(QPalette::Text, FromBgr(Readable(ToBgr(colour_), ground)));
        sample->setPalette(palette);
      }
  }

  // The parent window may destroy either dialog while it is open.
  void ChooseColour() {
    const QPointer<QColorDialog> dialog = new QColorDialog(colour_, this);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setFont(ControlFont());
    dialog->setWindowTitle(QStringLiteral("Couleur"));
    ShowInFrench(*dialog);
    if (dialog->exec() != QDialog::Accepted || !dialog) return;
    colour_ = dialog->selectedColor();
    chosen_ = static_cast<std::int32_t>(ToBgr(colour_));
    delete dialog;
    ShowColour();
  }

  QColor colour_;
  std::optional<std::int32_t> chosen_;
};

}  // namespace

// The dialog shows the nearest font that it has, in a whole size: what it shows before the user
// acts is what changes count from. The parent window may destroy it while it is open.
std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, QWidget* over) {
  const QPointer<ColouredFontDialog> dialog = new ColouredFontDialog(shown, over);
  const QFont before = dialog->currentFont();
  const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
  std::optional<FontChoice> choice;
  if (accepted) {
    choice = Changes(before, dialog->selectedFont());
    choice->colour = dialog->Colour();
  }
  delete dialog;
  return choice;
}

}  // namespace lumenote
