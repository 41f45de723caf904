#include "backends/qt/windows/FontDialog.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QLayout>
#include <QPointer>
#include <QPushButton>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/QtText.h"

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
  if (after.family() != before.family()) choice.name = FromQString(after.family());
  if (after.pointSizeF() != before.pointSizeF())
    choice.size = static_cast<float>(after.pointSizeF());
  if (after.bold() != before.bold()) choice.bold = after.bold();
  if (after.italic() != before.italic()) choice.italic = after.italic();
  if (after.underline() != before.underline()) choice.underline = after.underline();
  if (after.strikeOut() != before.strikeOut()) choice.strike = after.strikeOut();
  return choice;
}

std::int32_t ToBgr(const QColor& colour) {
  return colour.blue() << 16 | colour.green() << 8 | colour.red();
}

/// Qt's font dialog with a colour button.
class ColouredFontDialog : public QFontDialog {
 public:
  ColouredFontDialog(const FontChoice& shown, QWidget* over)
      : QFontDialog(FontOf(shown), over),
        colour_(FromBgr(static_cast<std::uint32_t>(shown.colour.value_or(0)))) {
    setOption(QFontDialog::DontUseNativeDialog);
    setWindowTitle(QStringLiteral("Police"));
    auto* button = new QPushButton(QStringLiteral("C&ouleur..."), this);
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this] { ChooseColour(); });
  }

  /// Empty until the user chooses one.
  std::optional<std::int32_t> Colour() const { return chosen_; }

 private:
  void ChooseColour() {
    const QColor colour = QColorDialog::getColor(colour_, this, QStringLiteral("Couleur"));
    if (!colour.isValid()) return;
    colour_ = colour;
    chosen_ = ToBgr(colour);
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
