// Changing the selection's letter case; superscript and subscript offsets.
#pragma once
#include <string>
#include <string_view>

#include "platform/Clipboard.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Proper case: lower case, except letters at the start or after a space, a tab, a line end or a
/// NUL.
std::u16string ProperCase(std::u16string_view text);

/// The rewritten selection takes the format of its first character.
void MettreEnMajuscules(RichTextSurface& surface);
void MettreEnMinuscules(RichTextSurface& surface);
/// Works through the clipboard and leaves it empty.
void MettreEnTitre(RichTextSurface& surface, Clipboard& clipboard);

/// Offsets of the superscript and subscript commands, in twips above the line.
inline constexpr int kExposant = 55;
inline constexpr int kIndice = -55;

}  // namespace lumenote
