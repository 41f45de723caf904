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

constexpr Signs kWingdings2[] = {
    {0x20, u" "},    {0x25, u"✄✀"}, {0x4F, u"✗✓☒☑☒☒"},
    {0x57, u"⦸⦸"},   {0x5D, u"‽"},      {0x69, u"⓪①②③④⑤⑥⑦⑧⑨⑩⓿❶❷❸❹❺❻❼❽❾❿"},
    {0x80, u"☉"},    {0x82, u"☽☾"},     {0x85, u"✝"},
    {0x95, u"•●⚫⬤"}, {0x9E, u"⦿◾■◼⬛⬜"}, {0xA8, u"▣"},
    {0xAC, u"⬩⬥◆◇"}, {0xB1, u"◈"},      {0xB5, u"⬪⬧⧫◊"},
    {0xBA, u"◖◗"},   {0xBE, u"◼⬥⬟"},    {0xC2, u"⬣⬢"},
    {0xE8, u"✦"},    {0xEA, u"★✶"},     {0xED, u"✷"},
    {0xF0, u"✹"},    {0xF3, u"✯"},      {0xF8, u"※⁂"},
};

constexpr Signs kWingdings3[] = {
    {0x20, u" ←→↑↓↖↗↙↘⇤⇥⤒⤓"},    {0x31, u"↔↕"},
    {0x50, u"↻↺⎋⌤⌃⌥⎵⍽⇪"},        {0x66, u"←→↑↓↖↗↙↘↔↕"},
    {0x70, u"▲▼△▽◄►◁▷◣◢◤◥◂▸▴"},  {0x80, u"▾▲▼◀▶⮜⮞⮝⮟"},
    {0x89, u"←→↑↓←→↑↓←→↑↓←→↑↓"}, {0x99, u"←→↑↓←→↑↓←→↑↓"},
    {0xC1, u"⬅➡⬆⬇⬅➡⬆⬇"},         {0xD1, u"←→↑↓↖↗↙↘"},
    {0xD9, u"←→↑↓↖↗↙↘"},         {0xE1, u"←→↑↓↖↗↙↘⬅➡⬆⬇"},
};

constexpr Signs kWebdings[] = {
    {0x20, u" "},  {0x33, u"◀▶▲▼⏪⏩⏮⏭⏸⏹⏺"},
    {0x61, u"✔"},  {0x63, u"□"},
    {0x67, u"■"},  {0x6E, u"●"},
    {0x73, u"❓"},  {0x77, u"⛳"},
    {0x79, u"⊖"},  {0x87, u"⛷"},
    {0x98, u"✯"},  {0xD9, u"☁"},
    {0xE8, u"Ⓟ♿"},
};

struct Font {
  std::u16string_view name;
  SymbolFont font;
  std::span<const Signs> signs;
};
constexpr Font kFonts[] = {
    {u"symbol", SymbolFont::Symbol, kSymbol},
    {u"wingdings", SymbolFont::Wingdings, kWingdings},
    {u"wingdings 2", SymbolFont::Wingdings2, kWingdings2},
    {u"wingdings 3", SymbolFont::Wingdings3, kWingdings3},
    {u"webdings", SymbolFont::Webdings, kWebdings},
};

std::span<const Signs> TableOf(SymbolFont font) {
  for (const Font& known : kFonts)
    if (known.font == font) return known.signs;
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
  for (const Font& known : kFonts)
    if (known.name == name) return known.font;
  return SymbolFont::None;
}

void ShowSigns(std::u16string& text, SymbolFont font) {
  const std::span<const Signs> table = TableOf(font);
  if (table.empty()) return;
  for (char16_t& unit : text) unit = SignOf(table, unit);
}

}  // namespace lumenote
