// Fonts that a host's style sheet leaves alone.
#pragma once
#include <QFont>
#include <QWidget>

namespace lumenote {

/// Gives the font, in pixels, to a widget and to what is in it. A style sheet of the application
/// would win over it, and pad controls that have no room to spare: there it becomes a style sheet.
void KeepFont(QWidget& widget, const QFont& font);

}  // namespace lumenote
