// What the characters of symbol fonts look like, for machines without those fonts.
#pragma once
#include <cstdint>
#include <string>

#include "document/formats/Formats.h"

namespace lumenote {

enum class SymbolFont : std::uint8_t { None, Symbol, Wingdings, Wingdings2, Wingdings3, Webdings };

/// The symbol font that a note names.
SymbolFont SymbolFontOf(const FontFace& face);
/// Replaces each character of a text in that font by the sign that it stands for, if there is one.
void ShowSigns(std::u16string& text, SymbolFont font);

}  // namespace lumenote
