// Substitutes installed fonts for the fonts that notes name.
#pragma once
#include <QFont>
#include <QString>

#include "document/formats/Formats.h"

namespace lumenote {

/// The named family if installed; else one with the same metrics or at least a similar look; else
/// the best match for the kind of font that the note states.
QString MachineFamily(const FontFace& face);

/// Whether a font of that name is installed.
bool IsInstalled(const FontFace& face);

/// A family as Qt names it, without the foundry that stands behind it if several have it.
QString WithoutFoundry(const QString& family);

/// The small font of labels, menus and panels.
QFont ControlFont();

}  // namespace lumenote
