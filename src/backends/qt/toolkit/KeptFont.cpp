#include "backends/qt/toolkit/KeptFont.h"

#include <QApplication>

namespace lumenote {

void KeepFont(QWidget& widget, const QFont& font) {
  widget.setFont(font);
  if (qApp->styleSheet().isEmpty()) return;
  widget.setStyleSheet(QStringLiteral("* { font: %1px \"%2\"; padding: 0px; margin: 0px }")
                           .arg(font.pixelSize())
                           .arg(font.family()));
}

}  // namespace lumenote
