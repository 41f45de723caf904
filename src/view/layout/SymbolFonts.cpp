#include "view/layout/SymbolFonts.h"

#include <span>
#include <string_view>

#include "base/Characters.h"

namespace lumenote {

namespace {

/// The signs of successive bytes.
struct Signs {
  char16_t first;
  std::u16string_view signs;
};

constexpr Signs kSymbol[] = {
    {0x20, u" !∀#∃%&∋()∗+,−./0123456789:;<=>?"},
    {0x40, u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"},
    {0x60, u"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼"},
    {0xA0, u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵"},
    {0xC0, u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"},
    {0xE0, u"◊⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"},
    {0xF1, u"⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭"},
};

constexpr Signs kWingdings[] = {
    {0x20, u" ✏✂✁"},
    {0x28, u"☎✆✉"},
    {0x36, u"⌛⌨"},
    {0x3E, u"✇✍"},
    {0x41, u"✌"},
    {0x45, u"☜☞☝☟"},
    {0x4A, u"☺"},
    {0x4C, u"☹"},
    {0x4E, u"☠⚐"},
    {0x51, u"✈☼"},
    {0x54, u"❄"},
    {0x58, u"✠✡☪☯ॐ☸♈♉♊♋♌♍♎♏♐♑♒♓"},
    {0x6C, u"●❍■□□❑❒◆⧫◆❖◆⌧⍓⌘❀✿❝❞"},
    {0x80, u"⓪①②③④⑤⑥⑦⑧⑨⑩⓿❶❷❸❹❺❻❼❽❾❿"},
    {0x9E, u"·•"},
    {0xA1, u"○"},
    {0xA4, u"◉◎"},
    {0xA7, u"▪◻"},
    {0xAA, u"✦★✶✴✹✵"},
    {0xB1, u"⌖"},
    {0xB5, u"✪✰"},
    {0xD5, u"⌫⌦"},
    {0xD8, u"➢"},
    {0xDC, u"➲"},
    {0xDF, u"←→↑↓↖↗↙↘"},
    {0xE8, u"➔⬆⬇"},
    {0xEF, u"⇦⇨⇧⇩"},
    {0xFB, u"✗✓☒☑"},
};

std::span<const Signs> TableOf(SymbolFont font) {
  if (font == SymbolFont::Symbol) return kSymbol;
  if (font == SymbolFont::Wingdings) return kWingdings;
  return {};
}

/// Characters of symbol fonts are their bytes, or, as most programs have them, U+F000 + byte.
char16_t SignOf(std::span<const Signs> table, char16_t unit) {
  constexpr char16_t kPrivate = 0xF000;
  const auto byte = static_cast<char16_t>(unit >= kPrivate ? unit - kPrivate : unit);
  for (const auto& [first, signs] : table)
    if (byte >= first && byte < first + signs.size()) return signs[byte - first];
  return unit;
}

}  // namespace

SymbolFont SymbolFontOf(const FontFace& face) {
  const std::u16string name = Lower(face.name);
  if (name == u"symbol") return SymbolFont::Symbol;
  return name == u"wingdings" ? SymbolFont::Wingdings : SymbolFont::None;
}

void ShowSigns(std::u16string& text, SymbolFont font) {
  const std::span<const Signs> table = TableOf(font);
  if (table.empty()) return;
  for (char16_t& unit : text) unit = SignOf(table, unit);
}

}  // namespace lumenote
