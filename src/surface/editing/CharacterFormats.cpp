#include "surface/editing/CharacterFormats.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "document/KeptEdits.h"

namespace lumenote {

namespace {

constexpr float kLeastSize = 1;
constexpr float kMaxSize = 1638;
constexpr std::int32_t kColourBits = 0xFFFFFF;
constexpr std::uint8_t kSymbolCharset = 2;
constexpr std::uint16_t kScripts = kSuperscript | kSubscript;

bool IsSymbolFont(std::u16string_view name) {
  constexpr std::array<std::u16string_view, 8> kSymbolFonts{
      u"symbol",  u"wingdings", u"wingdings 2",      u"wingdings 3",
      u"marlett", u"webdings",  u"bookshelf symbol", u"mt extra"};
  return std::ranges::find(kSymbolFonts, Lower(name)) != kSymbolFonts.end();
}

std::int32_t VisibleColour(const CharFormat& format) {
  return format.colour == kAutoColour ? 0 : static_cast<std::int32_t>(format.colour);
}

}  // namespace

template <class Get>
auto CharacterFormats::Common(Get get) const -> std::optional<decltype(get(CharFormat{}))> {
  if (!core_.HasSelection()) return get(core_.InsertionFormat());
  std::optional<decltype(get(CharFormat{}))> value;
  bool mixed = false;
  std::optional<CharId> last;
  const Selection selection = core_.Selected();
  core_.Content().ForEachRun(selection.start, selection.end, [&](Position, TextView, CharId id) {
    if (mixed || id == last) return;
    last = id;
    const auto found = get(core_.CharacterFormat(id));
    mixed = value && *value != found;
    value = found;
  });
  if (mixed) return std::nullopt;
  return value;
}

// Changes with `set` the formats for which `differs` is true.
template <class Differs, class Set>
void CharacterFormats::Apply(Differs differs, Set set) {
  core_.RefuseWhileNotifying();
  const auto edit = [&](CharFormat& format) {
    set(format);
    format.reset = Reset::Edited;
  };
  if (!core_.HasSelection()) {
    CharFormat format = core_.InsertionFormat();
    if (!differs(format)) return;
    edit(format);
    return core_.InsertionFormat(format);
  }
  const auto map = [&](CharId id) {
    CharFormat format = core_.CharacterFormat(id);
    if (!differs(format)) return id;
    edit(format);
    return core_.Formats().characters.Intern(format);
  };
  const Selection selection = core_.Selected();
  const bool toEnd = selection.end == core_.Content().Length();
  const auto mapped = core_.Content().MapFormats(selection.start, selection.end, map, {}, toEnd);
  if (!mapped) return;
  core_.Edit(UndoKind::Unknown, [&] { core_.Replace(selection.start, selection.end, *mapped); });
}

std::optional<bool> CharacterFormats::Effect(CharEffect effect) const {
  return Common([=](const CharFormat& format) { return (format.effects & effect) != 0; });
}

void CharacterFormats::Effect(CharEffect effect, bool on) {
  Apply([=](const CharFormat& format) { return ((format.effects & effect) != 0) != on; },
        [=](CharFormat& format) { format.effects ^= effect; });
}

std::optional<bool> CharacterFormats::Underlined() const {
  return Common([](const CharFormat& format) { return format.underline != Underline::None; });
}

void CharacterFormats::Underlined(bool on) {
  Apply([=](const CharFormat& format) { return (format.underline != Underline::None) != on; },
        [=](CharFormat& format) { format.underline = on ? Underline::Single : Underline::None; });
}

std::optional<int> CharacterFormats::Offset() const {
  return Common([](const CharFormat& format) { return int{format.offset}; });
}

// An explicit offset replaces the font's own superscript or subscript.
void CharacterFormats::Offset(int twips) {
  const std::int16_t offset = ToInt16(std::int64_t{twips});
  Apply(
      [=](const CharFormat& format) {
        return format.offset != offset || format.effects & kScripts;
      },
      [=](CharFormat& format) {
        format.offset = offset;
        format.effects &= static_cast<std::uint16_t>(~kScripts);
      });
}

std::optional<std::u16string> CharacterFormats::FontName() const {
  const auto& fonts = core_.Content().Formats().fonts;
  return Common([&](const CharFormat& format) { return fonts[format.font].name; });
}

void CharacterFormats::FontName(std::u16string_view name) {
  if (name.empty()) return;
  auto& fonts = core_.Formats().fonts;
  FontFace face;
  face.name = name;
  face.charset = IsSymbolFont(name) ? kSymbolCharset : 0;
  const FontId font = fonts.Intern(face);
  Apply(
      [&](const CharFormat& format) {
        return (format.stated & kStatesFont) == 0 || fonts[format.font].name != name;
      },
      [&](CharFormat& format) {
        format.font = font;
        format.stated |= kStatesFont;
        LeaveScripts(format, core_.Formats());
      });
}

std::optional<float> CharacterFormats::FontSize() const {
  return Common([](const CharFormat& format) { return static_cast<float>(format.size) / 2; });
}

void CharacterFormats::FontSize(float points) {
  const bool allowed = points >= kLeastSize && points <= kMaxSize;
  if (!allowed) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  const auto size = static_cast<std::uint16_t>(std::lround(points * 2));
  Apply(
      [=](const CharFormat& format) {
        return (format.stated & kStatesSize) == 0 || format.size != size;
      },
      [=, this](CharFormat& format) {
        format.size = size;
        format.stated |= kStatesSize;
        LeaveDirections(format, core_.Formats());
      });
}

std::optional<std::int32_t> CharacterFormats::TextColour() const { return Common(VisibleColour); }

void CharacterFormats::TextColour(std::int32_t colour) {
  if ((colour & kColourBits) != colour) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  Apply([=](const CharFormat& format) { return VisibleColour(format) != colour; },
        [=](CharFormat& format) { format.colour = static_cast<Colour>(colour); });
}

}  // namespace lumenote
