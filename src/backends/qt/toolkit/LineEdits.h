// Helpers of text boxes and combo boxes for their line edits.
#pragma once
#include <QLineEdit>
#include <string_view>

#include "backends/qt/toolkit/QtText.h"
#include "base/Position.h"

namespace lumenote {

/// The selection; an empty one is at the caret.
inline Selection SelectedIn(const QLineEdit& line) {
  if (!line.hasSelectedText()) return {line.cursorPosition(), line.cursorPosition()};
  return {line.selectionStart(), line.selectionEnd()};
}

/// Changing the text puts the caret at its end; an equal text leaves it alone.
inline void ShowText(QLineEdit& line, std::u16string_view text) {
  const QString wanted = ToQString(text);
  if (line.text() != wanted) line.setText(wanted);
}

/// Its context menu speaks French, whatever the language of the host's application.
void GiveFrenchMenu(QLineEdit& line);

}  // namespace lumenote
