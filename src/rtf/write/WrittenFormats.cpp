// Numbers fonts and colours, and writes the tables of the head.
#include "rtf/write/WrittenFormats.h"

#include <algorithm>
#include <cstdlib>

#include "base/Strings.h"
#include "base/Twips.h"
#include "base/Windows1252.h"
#include "base/codepages/CodePage.h"
#include "rtf/words/FontFamilies.h"

namespace lumenote {
namespace {

constexpr int kWildNumber = 1'000'000;  // real fonts never have such high numbers

/// Rounds away from zero.
int HalfPoints(int twips) {
  const int size = (std::abs(twips) + kTwipsPerHalfPoint - 1) / kTwipsPerHalfPoint;
  return twips < 0 ? -size : size;
}

/// Superscript and subscript are mutually exclusive.
std::uint16_t WrittenEffects(std::uint16_t effects) {
  const bool both = (effects & kSuperscript) != 0 && (effects & kSubscript) != 0;
  return static_cast<std::uint16_t>(both ? effects & ~kSubscript : effects);
}

/// The encoding of a font whose own page is `page`, 0 if it has none. Readers differ about the
/// bytes of a font without a character set, so these stay as they came.
Encoding EncodingOf(const FontFace& face, int page, int documentPage) {
  const bool ofDocument = page == 0 && face.charset == kDefaultCharset;
  switch (page == 0 ? documentPage : page) {
    case kPageOfWindows:
      return Encoding::Windows;
    case kPageOfSymbols:
      return Encoding::Symbols;
    default:
      return ofDocument ? Encoding::Document : Encoding::UnicodeOnly;
  }
}

void WriteFontName(const FontFace& face, Output& out) {
  const int page = CodePageOfCharset(face.charset);
  const bool inWindowsPage = page == 0 || page == kPageOfWindows || page == kPageOfSymbols;
  for (const char16_t& unit : face.name) {
    if (unit != u';' && out.Plain(std::u16string_view(&unit, 1)) == 1) continue;
    const int byte = unit < 0x80 || inWindowsPage ? ByteIn1252(unit) : -1;
    if (byte >= 0) {
      out.Hex(byte);
    } else {
      out.Unicode(unit);
    }
  }
}

}  // namespace

WrittenFormats::WrittenFormats(const FormatTables& tables, HeadId id, bool resets)
    : tables_(tables), numbers_(tables.characters.Size()), head_(id), resets_(resets) {
  defaultEncoding_ = EncodingOf({}, 0, Head().page);
  AddFonts();
  AddColours();
}

void WrittenFormats::AddFonts() {
  for (const KeptHead::Font& font : Head().fonts) {
    const FontFace& face = tables_.fonts[font.font];
    const std::uint32_t index = faces_.Intern(face);
    if (index == fonts_.size())
      fonts_.push_back({font.number, EncodingOf(face, font.page, Head().page), false, font.added});
    if (font.number == Head().defaultFont) UseDefault(fonts_[index]);
    if (font.number < kWildNumber) nextFont_ = std::max(nextFont_, font.number + 1);
  }
  headFonts_ = faces_.Size();
}

void WrittenFormats::UseDefault(Font& font) {
  font.used = true;
  defaultFont_ = font.number;
  defaultEncoding_ = font.encoding;
}

/// Entries that differ only in their tints are not told apart later: the plain one is used.
void WrittenFormats::AddColours() {
  colours_ = Head().colours;
  if (colours_.empty()) colours_.push_back(kAutoColour);
  const auto add = [&](bool tinted) {
    for (std::size_t i = 0; i < colours_.size(); ++i)
      if (TintOf(Head(), i).empty() != tinted) AddColour(i);
  };
  add(false);
  add(true);
}

/// For many readers entry 0 is automatic, whatever the table says.
void WrittenFormats::AddColour(std::size_t place) {
  if (place == 0 && colours_[0] != kAutoColour) return;
  const auto [entry, added] = colourNumbers_.try_emplace(colours_[place], static_cast<int>(place));
  if (added || entry->second < 0) return;
  const std::string& known = TintOf(Head(), static_cast<std::size_t>(entry->second));
  if (!known.empty() && known != TintOf(Head(), place)) entry->second = kNoEntry;
}

void WrittenFormats::UseFontZero() {
  if (!fonts_.empty() && fonts_.front().number == 0) fonts_.front().used = true;
}

void WrittenFormats::UseBullets() {
  bulletFont_ = FontOf({.name = u"Symbol", .charset = 2}).number;
}

/// A number that no font of the source has.
int WrittenFormats::NextFont() {
  const auto taken = [this](int number) {
    return std::ranges::binary_search(Head().fonts, number, {}, &KeptHead::Font::number);
  };
  while (taken(nextFont_)) ++nextFont_;
  return nextFont_++;
}

const WrittenFormats::Font& WrittenFormats::FontOf(const FontFace& face) {
  const std::uint32_t index = faces_.Intern(face);
  if (index == fonts_.size()) {
    const int page = CodePageOfCharset(face.charset);
    fonts_.push_back({NextFont(), EncodingOf(face, page, Head().page)});
  }
  fonts_[index].used = true;
  return fonts_[index];
}

WrittenFormat WrittenFormats::Written(const CharFormat& format) {
  WrittenFormat written;
  SetFont(format, written);
  written.words = WordsOf(format);
  if ((format.stated & kStatesSize) != 0) written.size = std::max<int>(format.size, 1);
  written.halfPoints = HalfPoints(format.offset);
  for (std::size_t i = 0; i < written.numbers.size(); ++i)
    written.numbers[i] = Number(kNumberWords[i], format);
  written.effects = WrittenEffects(format.effects);
  written.underline = format.underline;
  if (Resets(format.reset)) written.reset = format.reset;
  written.spelling = format.spelling;
  return written;
}

/// A first \plain only matters if it ends the rule of another default font than font 0.
bool WrittenFormats::Resets(Reset reset) const {
  if (reset == Reset::First) return resets_ && defaultFont_ > 0;
  return resets_ && reset != Reset::Edited;
}

/// Some readers give text that states no font font 0, not the default one.
void WrittenFormats::SetFont(const CharFormat& format, WrittenFormat& written) {
  written.encoding = defaultEncoding_;
  if ((format.stated & kStatesFont) == 0) return UseFontZero();
  FontFace face = tables_.fonts[format.font];
  face.name = TrimSpaces(face.name);
  const Font& font = FontOf(face);
  written.font = font.number;
  written.encoding = font.encoding;
}

bool WrittenFormats::NamesColour(WordsId words) const {
  return words != 0 && tables_.names[tables_.words[words].name] == kColourWord;
}

/// The number that the source gives the format's colour by its place in a theme; 0 if none.
int WrittenFormats::TintedNumber(const CharFormat& format) const {
  if (!NamesColour(format.words)) return 0;
  const int number = tables_.words[format.words].number;
  const auto place = static_cast<std::size_t>(std::max(number, 0));
  const bool same = place < Head().colours.size() && Head().colours[place] == format.colour &&
                    !TintOf(Head(), place).empty();
  return same ? number : 0;
}

/// The kept words but the first if that is the colour's, which has its number.
WordsId WrittenFormats::WordsOf(const CharFormat& format) const {
  return NamesColour(format.words) ? tables_.words[format.words].next : format.words;
}

std::int32_t WrittenFormats::Number(const NumberWord& word, const CharFormat& format) {
  const std::int64_t number = word.get(format);
  if (word.name == kColourWord)
    if (const int tinted = TintedNumber(format); tinted > 0) return tinted;
  if (word.kind == NumberWord::Kind::Number) return static_cast<std::int32_t>(number);
  const bool unstated = number == kAutoColour && (format.stated & kStatesColour) == 0;
  if (word.kind == NumberWord::Kind::Colour && unstated) return kUnstated;
  if (word.kind == NumberWord::Kind::Background && number == kAutoColour) return 0;
  return ColourNumber(static_cast<Colour>(number));
}

int WrittenFormats::ColourNumber(Colour colour) {
  if (colour != kAutoColour) colour &= 0xFFFFFF;
  int& number = colourNumbers_.try_emplace(colour, kNoEntry).first->second;
  if (number < 0) {
    number = static_cast<int>(colours_.size());
    colours_.push_back(colour);
  }
  return number;
}

void WrittenFormats::WriteFontTable(Output& out) const {
  const std::string& kept = Head().fontTable;
  std::vector<std::uint32_t> written;
  for (std::uint32_t index = 0; index < faces_.Size(); ++index)
    if (index >= headFonts_ || fonts_[index].added || (kept.empty() && fonts_[index].used))
      written.push_back(index);
  if (kept.empty() && written.empty()) return;
  out.Raw("{\\fonttbl");
  for (const std::uint32_t index : written) WriteFont(faces_[index], fonts_[index], out);
  // Some readers take a blank between fonts for a font's name.
  constexpr std::string_view kEndingWord = "{\\\r";
  if (written.empty() && kEndingWord.find(kept[0]) == kEndingWord.npos) out.Raw(" ");
  out.Words(kept);
  out.Raw("}\r\n");
}

void WrittenFormats::WriteFont(const FontFace& face, const Font& font, Output& out) const {
  out.Raw("{");
  out.Word("f", font.number);
  out.Word(kFontFamilies[face.family % kFontFamilies.size()]);
  if (face.pitch != 0) out.Word("fprq", face.pitch);
  out.Word("fcharset", face.charset);
  out.Raw(" ");
  WriteFontName(face, out);
  out.Raw(";}");
}

void WrittenFormats::WriteColourTable(Output& out) const {
  if (colours_.size() == 1 && colours_[0] == kAutoColour && TintOf(Head(), 0).empty()) return;
  out.Raw("{\\colortbl ");
  for (std::size_t i = 0; i < colours_.size(); ++i) {
    const Colour colour = colours_[i];
    out.Words(TintOf(Head(), i));
    if (colour != kAutoColour) {
      out.Word("red", static_cast<int>(colour & 0xFF));
      out.Word("green", static_cast<int>(colour >> 8 & 0xFF));
      out.Word("blue", static_cast<int>(colour >> 16));
    }
    out.Raw(";");
  }
  out.Raw("}\r\n");
}

}  // namespace lumenote
