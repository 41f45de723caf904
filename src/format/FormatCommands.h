// The character and paragraph commands of the menus; each acts at once on the selection.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Turn the attribute off when the whole selection has it, else on.
void BasculerGras(RichTextSurface& surface);
void BasculerItalique(RichTextSurface& surface);
void BasculerSouligné(RichTextSurface& surface);
void BasculerBarré(RichTextSurface& surface);
/// Bold, italic, underline and strike off.
void MettreNormal(RichTextSurface& surface);
/// Bullets off also takes the hanging indent back to 0.
void BasculerPuces(RichTextSurface& surface);

/// The step of indents, in twips.
inline constexpr int kIndentStep = 150;
/// Moves the indent by so many twips, without bounds; a mixed one stays.
void DécalerRetrait(RichTextSurface& surface, int twips);

}  // namespace lumenote
