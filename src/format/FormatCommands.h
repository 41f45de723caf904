// The menus' character and paragraph commands, applied to the selection at once.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Clears the attribute if the whole selection has it, else sets it.
void BasculerGras(RichTextSurface& surface);
void BasculerItalique(RichTextSurface& surface);
void BasculerSouligné(RichTextSurface& surface);
void BasculerBarré(RichTextSurface& surface);
/// Clears bold, italic, underline and strike-through.
void MettreNormal(RichTextSurface& surface);
/// Removing bullets also resets the hanging indent to 0.
void BasculerPuces(RichTextSurface& surface);

/// Indent step, in twips.
inline constexpr int kIndentStep = 150;
/// Changes the indent by `twips`, without bounds; a mixed indent stays.
void DécalerRetrait(RichTextSurface& surface, int twips);

}  // namespace lumenote
