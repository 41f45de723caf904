// Printing by the toolkit's dialog, in French.
#pragma once
#include <QWidget>

#include "surface/DocumentSurface.h"

namespace lumenote {

/// Asks how, then prints the note or what is selected of it; blocks until that is done. A PDF file
/// is replaced at once or not at all. Returns false if the printer or the file failed. The parent
/// `over` may be destroyed meanwhile, and the surface with it.
bool PrintByDialog(const DocumentSurface& surface, const QString& title, QWidget* over);

}  // namespace lumenote
