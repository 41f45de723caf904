#include "html/write/HtmlFormats.h"

#include <cstdlib>

#include "base/Strings.h"
#include "html/words/LinkLook.h"

namespace lumenote {
namespace {

struct EffectTag {
  std::uint16_t effects;
  std::string_view tag;
};
constexpr EffectTag kEffectTags[] = {
    {kBold, "b"},          {kItalic, "i"},      {kStrike | kDoubleStrike | kDeleted, "s"},
    {kSuperscript, "sup"}, {kSubscript, "sub"},
};

/// Indexed by Underline.
constexpr std::string_view kLineStyles[] = {
    "",      "",      "",      " double", " dotted", " dashed", " dashed", " dashed", "",
    " wavy", " wavy", " wavy", " dashed", " dotted", " dashed", " dashed", " dashed", " dashed"};

constexpr std::string_view kAlignments[] = {"left", "right", "center", "justify"};

/// A number of hundredths with at most two decimals.
std::string Decimal(std::int64_t hundredths) {
  const std::int64_t size = std::abs(hundredths);
  std::string text = (hundredths < 0 ? "-" : "") + std::to_string(size / 100);
  if (size % 100 == 0) return text;
  text += '.';
  text += static_cast<char>('0' + size / 10 % 10);
  if (size % 10 != 0) text += static_cast<char>('0' + size % 10);
  return text;
}

void Declare(std::string_view property, std::string_view value, std::string& style) {
  style.append(property).append(":").append(value).append(";");
}

std::string ColourText(Colour colour) {
  if (colour == kAutoColour) return "windowtext";
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (int part = 0; part < 3; ++part, colour >>= 8) {
    text += kDigits[colour >> 4 & 15];
    text += kDigits[colour & 15];
  }
  return text;
}

/// The name in quotes, without characters that could end them or the attribute. Each paragraph
/// states it, so one that no font has is left out.
void DeclareFont(std::u16string_view name, std::string& style) {
  constexpr std::size_t kLongest = 255;
  if (name.size() > kLongest) return;
  std::u16string quoted;
  for (const char16_t c : name)
    if (c >= u' ' && std::u16string_view(u"\"'<>&;\\").find(c) == std::u16string_view::npos)
      quoted += c;
  if (!quoted.empty()) Declare("font-family", "'" + ToUtf8(quoted) + "'", style);
}

/// Font and size, where they are stated and `around` does not state the same.
void DeclareFontAndSize(const CharFormat& format, const CharFormat& around,
                        const FormatTables& tables, std::string& style) {
  const auto declares = [&](CharStated what, bool same) {
    return (format.stated & what) != 0 && !((around.stated & what) != 0 && same);
  };
  const std::u16string& font = tables.fonts[format.font].name;
  if (declares(kStatesFont, font == tables.fonts[around.font].name)) DeclareFont(font, style);
  if (declares(kStatesSize, format.size == around.size))
    Declare("font-size", Decimal(std::int64_t{format.size} * 50) + "pt", style);
}

void DeclareLine(Underline underline, bool inLink, std::string& style) {
  const std::string_view line = kLineStyles[static_cast<std::size_t>(underline)];
  if (inLink && underline == Underline::None) Declare("text-decoration", "none", style);
  if (!line.empty()) Declare("text-decoration", "underline" + std::string(line), style);
}

/// What no tag says.
std::string CharacterStyle(const CharFormat& format, const CharFormat& around, bool inLink,
                           const FormatTables& tables) {
  std::string style;
  DeclareFontAndSize(format, around, tables, style);
  if (format.colour != (inLink ? kLinkColour : kAutoColour))
    Declare("color", ColourText(format.colour), style);
  if (format.highlight != kAutoColour)
    Declare("background-color", ColourText(format.highlight), style);
  DeclareLine(format.underline, inLink, style);
  if (format.effects & kAllCaps) Declare("text-transform", "uppercase", style);
  if (format.effects & kSmallCaps) Declare("font-variant", "small-caps", style);
  if (format.effects & kHidden) style += "display:none;mso-hide:all;";
  if (format.spacing != 0) DeclareLength("letter-spacing", format.spacing, style);
  if (format.offset != 0) DeclareLength("vertical-align", format.offset, style);
  return style;
}

void AddTag(std::string_view name, std::string_view attributes, HtmlTags& tags) {
  tags.open.append("<").append(name).append(attributes).append(">");
  tags.close.insert(0, "</" + std::string(name) + ">");
}

void DeclareLines(const ParaFormat& format, std::string& style) {
  constexpr std::int64_t kHundredths = 100 * 100;  // of a per cent, in a line
  switch (format.lineRule) {
    case LineRule::Single:
      return;
    case LineRule::OneAndHalf:
      return Declare("line-height", "1.5", style);
    case LineRule::Double:
      return Declare("line-height", "2", style);
    case LineRule::Multiple:
      return Declare("line-height", Decimal(format.lineSpacing * kHundredths / kSingleLine) + "%",
                     style);
    default:
      DeclareLength("line-height", format.lineSpacing, style);
      Declare("mso-line-height-rule", format.lineRule == LineRule::Exact ? "exactly" : "at-least",
              style);
  }
}

}  // namespace

void DeclareLength(std::string_view property, std::int32_t twips, std::string& style) {
  Declare(property, Decimal(std::int64_t{twips} * 5) + "pt", style);
}

HtmlTags TagsOf(const CharFormat& format, const CharFormat& around, bool inLink,
                const FormatTables& tables) {
  HtmlTags tags;
  const std::string style = CharacterStyle(format, around, inLink, tables);
  if (!style.empty()) AddTag("span", " style=\"" + style + "\"", tags);
  for (const EffectTag& effect : kEffectTags)
    if (format.effects & effect.effects) AddTag(effect.tag, "", tags);
  const bool plain = kLineStyles[static_cast<std::size_t>(format.underline)].empty();
  if (plain && !inLink && format.underline != Underline::None) AddTag("u", "", tags);
  return tags;
}

std::string ItemStyle(const ParaFormat& format, const CharFormat& text,
                      const FormatTables& tables) {
  std::string style;
  DeclareLength("margin-top", format.spaceBefore, style);
  DeclareLength("margin-bottom", format.spaceAfter, style);
  if (format.rightIndent != 0) DeclareLength("margin-right", format.rightIndent, style);
  const bool leftFromTheRight = format.rightToLeft != 0 && (format.stated & kStatesAlignment) != 0;
  if (format.alignment != Alignment::Left || leftFromTheRight)
    Declare("text-align", kAlignments[static_cast<std::size_t>(format.alignment)], style);
  if (format.rightToLeft != 0) Declare("direction", "rtl", style);
  DeclareLines(format, style);
  DeclareFontAndSize(text, {.stated = 0}, tables, style);
  return style;
}

std::string ParagraphStyle(const ParaFormat& format, const CharFormat& text,
                           const FormatTables& tables) {
  std::string style;
  const std::int32_t left = format.firstIndent + format.hangingIndent;
  if (left != 0) DeclareLength("margin-left", left, style);
  if (format.hangingIndent != 0) DeclareLength("text-indent", -format.hangingIndent, style);
  return style + ItemStyle(format, text, tables);
}

}  // namespace lumenote
