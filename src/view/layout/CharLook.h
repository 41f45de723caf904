// How a character format looks, as far as no toolkit is needed to say so.
#pragma once
#include "document/FormatTables.h"
#include "view/layout/SymbolFonts.h"

namespace lumenote {

/// Size of capitals shown for small letters, relative to the font's.
inline constexpr double kSmallCapitalSize = 0.8;

/// A character format at one zoom. The backend adds what depends on its fonts: their extent.
struct CharLook {
  double points = 0;  // of the font, not zoomed
  double raise = 0;   // pixels, of the font's baseline above the line's
  double ascent = 0;  // pixels, of the font, above its baseline
  double descent = 0;
  Underline underline = Underline::None;
  int strikes = 0;  // lines through the text
  bool hidden = false;
  bool capitals = false;                // shown instead of small letters
  bool smallCapitals = false;           // and these are smaller
  SymbolFont signs = SymbolFont::None;  // to show, if the font is not installed
  Colour ink = kAutoColour;
  Colour ground = kAutoColour;
};

/// The colour, lightened if it has too little contrast with a dark ground.
Colour Readable(Colour wanted, Colour ground);

/// Whether the machine has a font.
using FontTest = bool (*)(const FontFace&);

/// `ground` is that of the note; ink with too little contrast is lightened on a dark one.
CharLook LookOf(const FormatTables& tables, const CharFormat& format, double zoom, Colour ground,
                FontTest isInstalled);

}  // namespace lumenote
