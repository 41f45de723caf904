#include "html/read/Look.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Twips.h"

namespace lumenote {
namespace {

constexpr double kLongest = 1'000'000;  // twips
constexpr int kMaxSize = 0xFFFF;        // half-points

void SetLines(const LookChange::LineSpacing& lines, Look& look) {
  look.paragraph.lineRule = lines.rule;
  look.paragraph.lineSpacing = 0;
  if (lines.rule == LineRule::Multiple) {
    const double spacing = std::round(lines.length.value * kSingleLine);
    look.paragraph.lineSpacing = static_cast<std::int32_t>(std::clamp(spacing, 1.0, kLongest));
  } else if (lines.rule >= LineRule::AtLeast) {
    look.paragraph.lineSpacing = lines.length.Twips(look.character);
  }
}

}  // namespace

int CssLength::Twips(const CharFormat& character) const {
  const double unit = this->unit == Unit::Twips ? 1 : character.size * kTwipsPerHalfPoint;
  return static_cast<int>(std::lround(std::clamp(value * unit, -kLongest, kLongest)));
}

void LookChange::ApplyTo(Look& look) const {
  CharFormat& character = look.character;
  if (size) {
    const int halfPoints = size->Twips(character) / kTwipsPerHalfPoint;
    character.size = static_cast<std::uint16_t>(std::clamp(halfPoints, 1, kMaxSize));
    character.stated |= kStatesSize;
  }
  if (font) {
    character.font = *font;
    character.stated |= kStatesFont;
  }
  constexpr int kRaised = kSuperscript | kSubscript;
  if (on & kRaised) character.effects = static_cast<std::uint16_t>(character.effects & ~kRaised);
  character.effects = static_cast<std::uint16_t>((character.effects | on) & ~off);
  character.underline = underline.value_or(character.underline);
  character.colour = colour.value_or(character.colour);
  character.highlight = highlight.value_or(character.highlight);
  character.kept = kept.value_or(character.kept);
  if (spacing) character.spacing = Clipped<std::int16_t>(spacing->Twips(character));
  if (offset) character.offset = Clipped<std::int16_t>(offset->Twips(character));

  ParaFormat& paragraph = look.paragraph;
  if (nesting) {
    paragraph.nesting = *nesting;
    look.left = look.first = paragraph.rightIndent = 0;
  }
  const int most = static_cast<int>(kLongest);
  const auto add = [&](int& to, const std::optional<CssLength>& length) {
    if (length) to = std::clamp(to + length->Twips(character), -most, most);
  };
  add(look.left, left);
  add(look.left, padding);
  add(paragraph.rightIndent, right);
  if (first) look.first = first->Twips(character);
  if (lines) SetLines(*lines, look);
  paragraph.alignment = alignment.value_or(paragraph.alignment);
  if (rightToLeft) paragraph.rightToLeft = *rightToLeft ? 1 : 0;
  if (paragraph.rightToLeft && alignment == Alignment::Left) paragraph.stated |= kStatesAlignment;
  look.preserve = preserve.value_or(look.preserve);
  look.spaces = look.spaces || spaces;
  if (text && look.text != Look::Text::Hidden) look.text = *text;
}

}  // namespace lumenote
