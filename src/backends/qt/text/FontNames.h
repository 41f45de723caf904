// Which font of this machine stands for a font that a note names.
#pragma once
#include <QFont>
#include <QString>

#include "document/formats/Formats.h"

namespace lumenote {

/// The family named, when the machine has it; else one of the same metrics or at least the same
/// look; else the best for the kind of font that the note says it is.
QString MachineFamily(const FontFace& face);

/// The small font of labels, menus and panels.
QFont ControlFont();

}  // namespace lumenote
