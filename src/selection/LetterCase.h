// Changing the case of the selected text, and raising or lowering it.
#pragma once
#include <string>
#include <string_view>

#include "platform/Clipboard.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// The text in proper case: lower case, but for each letter that begins the text or follows a
/// blank, a tab, a line end or a NUL.
std::u16string ProperCase(std::u16string_view text);

/// Rewrite the selection, which takes the format of its first character.
void MettreEnMajuscules(RichTextSurface& surface);
void MettreEnMinuscules(RichTextSurface& surface);
/// Goes through the clipboard, which is empty afterwards.
void MettreEnTitre(RichTextSurface& surface, Clipboard& clipboard);

/// Offsets of the script commands, in twips above the line.
inline constexpr int kExposant = 55;
inline constexpr int kIndice = -55;

}  // namespace lumenote
