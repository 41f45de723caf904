// Numbers fonts and colours, and writes the tables of the head.
#include "rtf/write/WrittenFormats.h"

#include <algorithm>
#include <cstdlib>

#include "base/Strings.h"
#include "base/Windows1252.h"
#include "rtf/codepages/CodePage.h"

namespace lumenote {
namespace {

constexpr int kTwipsPerHalfPoint = 10;
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

WrittenFormats::WrittenFormats(const FormatTables& tables, HeadId id)
    : tables_(tables), numbers_(tables.characters.Size()), head_(id) {
  written_.Intern({});
  const KeptHead& head = Head();
  for (const KeptHead::Font& font : head.fonts) {
    const std::uint32_t known = faces_.Size();
    const FontFace& face = tables.fonts[font.font];
    faces_.Intern(face);
    if (font.number < kWildNumber) nextFont_ = std::max(nextFont_, font.number + 1);
    if (faces_.Size() != known)
      fonts_.push_back({font.number, EncodingOf(face, font.page, head.page)});
  }
  keptFonts_ = faces_.Size();
  for (const Colour colour : head.colours) {
    if (colour != kAutoColour)
      colourNumbers_.try_emplace(colour, static_cast<int>(colours_.size()));
    colours_.push_back(colour);
  }
  if (colours_.empty()) colours_.push_back(kAutoColour);
}

void WrittenFormats::UseBullets() {
  bulletFont_ = fonts_[FontIndex({.name = u"Symbol", .charset = 2})].number;
}

std::uint32_t WrittenFormats::FontIndex(const FontFace& face) {
  const std::uint32_t index = faces_.Intern(face);
  if (index == fonts_.size()) {
    const int page = CodePageOfCharset(face.charset);
    fonts_.push_back({nextFont_++, EncodingOf(face, page, Head().page)});
  }
  return index;
}

WrittenFormat WrittenFormats::Written(const CharFormat& format) {
  FontFace face = tables_.fonts[format.font];
  face.name = TrimSpaces(face.name);
  WrittenFormat written;
  const Font& font = fonts_[FontIndex(face)];
  written.font = font.number;
  written.encoding = font.encoding;
  written.words = format.words;
  written.size = std::max<int>(format.size, 1);
  written.halfPoints = HalfPoints(format.offset);
  for (std::size_t i = 0; i < written.numbers.size(); ++i)
    written.numbers[i] = Number(kNumberWords[i], format);
  written.effects = WrittenEffects(format.effects);
  written.underline = format.underline;
  return written;
}

std::int32_t WrittenFormats::Number(const NumberWord& word, const CharFormat& format) {
  const std::int64_t number = word.get(format);
  if (word.kind != NumberWord::Kind::Number) return ColourNumber(static_cast<Colour>(number));
  return static_cast<std::int32_t>(number);
}

int WrittenFormats::ColourNumber(Colour colour) {
  if (colour == kAutoColour) return 0;
  const auto [entry, added] =
      colourNumbers_.try_emplace(colour & 0xFFFFFF, static_cast<int>(colours_.size()));
  if (added) colours_.push_back(colour & 0xFFFFFF);
  return entry->second;
}

void WrittenFormats::WriteFontTable(Output& out) const {
  static constexpr std::string_view kFamilies[] = {"fnil",    "froman", "fswiss", "fmodern",
                                                   "fscript", "fdecor", "ftech",  "fbidi"};
  out.Raw("{\\fonttbl");
  for (std::uint32_t index = keptFonts_; index < faces_.Size(); ++index) {
    const FontFace& face = faces_[index];
    out.Raw("{");
    out.Word("f", fonts_[index].number);
    out.Word(kFamilies[face.family % std::size(kFamilies)]);
    if (face.pitch != 0) out.Word("fprq", face.pitch);
    out.Word("fcharset", face.charset);
    out.Raw(" ");
    WriteFontName(face, out);
    out.Raw(";}");
  }
  const std::string& kept = Head().fontTable;
  if (!kept.empty() && kept[0] != '{' && kept[0] != '\\') out.Raw(" ");
  out.Words(kept);
  out.Raw("}\r\n");
}

void WrittenFormats::WriteColourTable(Output& out) const {
  if (colours_.size() == 1) return;
  out.Raw("{\\colortbl ");
  for (const Colour colour : colours_) {
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
