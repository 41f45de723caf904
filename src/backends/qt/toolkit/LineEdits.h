// What text boxes and combo boxes do with their line of text.
#pragma once
#include <QLineEdit>
#include <string_view>

#include "backends/qt/toolkit/QtText.h"
#include "base/Position.h"

namespace lumenote {

/// The selection; an empty one stands at the caret.
inline Selection SelectedIn(const QLineEdit& line) {
  if (!line.hasSelectedText()) return {line.cursorPosition(), line.cursorPosition()};
  return {line.selectionStart(), line.selectionEnd()};
}

/// Another text puts the caret at its end; the same one leaves it where it is.
inline void ShowText(QLineEdit& line, std::u16string_view text) {
  const QString wanted = ToQString(text);
  if (line.text() != wanted) line.setText(wanted);
}

}  // namespace lumenote
