#include "view/layout/CharLook.h"

#include <algorithm>
#include <cmath>

#include "base/Twips.h"
#include "document/Footnotes.h"
#include "document/Links.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

namespace {

constexpr double kLeastPoints = 1;
constexpr double kMaxPoints = 1638;
constexpr double kScriptSize = 0.65;
constexpr double kSuperscriptRaise = 0.33;  // of the full size
constexpr double kSubscriptRaise = -0.14;
constexpr double kLeastContrast = 3;
constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kLinkColour = 0xC16305;  // a blue, and a lighter one
constexpr Colour kLinkOnDark = 0xFFB46B;

struct Channels {
  int red, green, blue;

  explicit Channels(Colour colour)
      : red(colour & 0xFF), green(colour >> 8 & 0xFF), blue(colour >> 16 & 0xFF) {}
  /// Twice the lightness, 0 to 510.
  int Lightness() const { return std::max({red, green, blue}) + std::min({red, green, blue}); }
  int Grey() const { return (red * 11 + green * 16 + blue * 5) / 32; }
};

double Luminance(Colour colour) {
  const auto linear = [](int channel) {
    const double c = channel / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  const Channels of(colour);
  return 0.2126 * linear(of.red) + 0.7152 * linear(of.green) + 0.0722 * linear(of.blue);
}

double Contrast(Colour one, Colour other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

/// Hue and saturation stay; the lightness is reflected.
Colour Reflected(Colour colour) {
  const Channels of(colour);
  const int shift = 255 - of.Lightness();
  const auto channel = [&](int value) {
    return static_cast<Colour>(std::clamp(value + shift, 0, 255));
  };
  return channel(of.red) | channel(of.green) << 8 | channel(of.blue) << 16;
}

bool IsDark(Colour ground) { return Channels(ground).Lightness() < 255; }

void SetColours(CharLook& look, const CharFormat& format, Colour ground) {
  look.ground = format.highlight;
  if (format.highlight == kAutoColour)
    look.ink = format.colour == kAutoColour ? kAutoColour : Readable(format.colour, ground);
  else if (format.colour == kAutoColour)
    look.ink = Channels(format.highlight).Grey() >= 128 ? kBlack : kWhite;
  else
    look.ink = format.colour;
}

// Superscript and subscript are smaller than the format's size.
void SetSize(CharLook& look, const CharFormat& format, double zoom) {
  const double full = std::clamp(format.size / 2.0, kLeastPoints, kMaxPoints);
  const double pixels = full * 4 / 3;
  const bool super = format.effects & kSuperscript;
  const bool sub = !super && (format.effects & kSubscript);
  const double raise = super ? kSuperscriptRaise : sub ? kSubscriptRaise : 0;
  look.points = super || sub ? full * kScriptSize : full;
  look.raise = (format.offset / kTwipsPerPixel + pixels * raise) * zoom;
}

int StrikesOf(unsigned effects) {
  if (effects & kDoubleStrike) return 2;
  return effects & (kStrike | kDeleted) ? 1 : 0;
}

/// Underline and colour of the text's own stay.
void ShowLink(CharLook& look, Colour ground) {
  if (look.underline == Underline::None) look.underline = Underline::Single;
  const bool plain = look.ink == kAutoColour && look.ground == kAutoColour;
  if (plain) look.ink = IsDark(ground) ? kLinkOnDark : kLinkColour;
}

}  // namespace

Colour Readable(Colour wanted, Colour ground) {
  return !IsDark(ground) || Contrast(wanted, ground) >= kLeastContrast ? wanted : Reflected(wanted);
}

CharLook LookOf(const FormatTables& tables, const CharFormat& format, double zoom, Colour ground,
                FontTest isInstalled) {
  CharLook look;
  const bool bareNote = IsFootnote(tables, format) && !HasNumber(tables, format);
  look.hidden = bareNote || (format.effects & kHidden);
  look.underline = format.underline;
  look.strikes = StrikesOf(format.effects);
  look.capitals = format.effects & (kAllCaps | kSmallCaps);
  look.smallCapitals = (format.effects & (kAllCaps | kSmallCaps)) == kSmallCaps;
  const FontFace& face = tables.fonts[format.font];
  const SymbolFont signs = SymbolFontOf(face);
  if (signs != SymbolFont::None && !isInstalled(face)) look.signs = signs;
  SetSize(look, format, zoom);
  SetColours(look, format, ground);
  if (!LinkOf(tables, format).empty()) ShowLink(look, ground);
  return look;
}

}  // namespace lumenote
