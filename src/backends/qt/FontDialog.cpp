#include "backends/qt/FontDialog.h"

#include <QFontDialog>

#include "backends/qt/FontNames.h"
#include "backends/qt/QtText.h"

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

}  // namespace

std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, QWidget* over) {
  const QFont before = FontOf(shown);
  bool accepted = false;
  const QFont after = QFontDialog::getFont(&accepted, before, over, QStringLiteral("Police"));
  if (!accepted) return {};
  return Changes(before, after);
}

}  // namespace lumenote
