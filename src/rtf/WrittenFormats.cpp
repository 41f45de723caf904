// Numbering fonts and colours, and the tables at the head of the source.
#include "rtf/WrittenFormats.h"

#include <algorithm>
#include <cstdlib>

#include "base/Strings.h"
#include "rtf/CodePage.h"

namespace lumenote {
namespace {

constexpr int kTwipsPerHalfPoint = 10;

/// Rounded away from zero.
int HalfPoints(int twips) {
  const int size = (std::abs(twips) + kTwipsPerHalfPoint - 1) / kTwipsPerHalfPoint;
  return twips < 0 ? -size : size;
}

/// Superscript and subscript exclude each other.
std::uint16_t WrittenEffects(std::uint16_t effects) {
  const bool both = (effects & kSuperscript) != 0 && (effects & kSubscript) != 0;
  return static_cast<std::uint16_t>(both ? effects & ~kSubscript : effects);
}

void WriteFontName(const FontFace& face, Output& out) {
  const int page = CodePageOfCharset(face.charset);
  const bool inWindowsPage = page == 0 || page == kPageOfWindows || page == kPageOfSymbols;
  for (const char16_t& unit : face.name) {
    if (unit != u';' && out.Plain({&unit, 1}) == 1) continue;
    const int byte = unit < 0x80 || inWindowsPage ? ByteIn1252(unit) : -1;
    if (byte >= 0) {
      out.Hex(byte);
    } else {
      out.Unicode(unit);
    }
  }
}

}  // namespace

WrittenFormats::WrittenFormats(const FormatTables& tables)
    : tables_(tables), written_(tables.characters.Size()) {}

void WrittenFormats::Use(CharId format) {
  if (written_[format].font < 0) written_[format] = Written(tables_.characters[format]);
}

void WrittenFormats::UseBullets() {
  bulletFont_ = static_cast<int>(fonts_.Intern({.name = u"Symbol", .charset = 2}));
}

WrittenFormat WrittenFormats::Written(const CharFormat& format) {
  FontFace face = tables_.fonts[format.font];
  face.name = TrimBlanks(face.name);
  WrittenFormat written;
  written.font = static_cast<int>(fonts_.Intern(face));
  written.size = std::max<int>(format.size, 1);
  written.colour = ColourNumber(format.colour);
  written.highlight = ColourNumber(format.highlight);
  written.halfPoints = HalfPoints(format.offset);
  written.language = format.language;
  written.spacing = format.spacing;
  written.scale = std::max<int>(format.scale, 1);
  written.effects = WrittenEffects(format.effects);
  written.underline = format.underline;
  return written;
}

int WrittenFormats::ColourNumber(Colour colour) {
  if (colour == kAutoColour) return 0;
  const auto [entry, added] =
      colourNumbers_.try_emplace(colour & 0xFFFFFF, static_cast<int>(colours_.size()) + 1);
  if (added) colours_.push_back(colour & 0xFFFFFF);
  return entry->second;
}

void WrittenFormats::WriteFontTable(Output& out) const {
  static constexpr std::string_view kFamilies[] = {"fnil",    "froman", "fswiss", "fmodern",
                                                   "fscript", "fdecor", "ftech",  "fbidi"};
  out.Raw("{\\fonttbl");
  for (std::uint32_t number = 0; number < fonts_.Size(); ++number) {
    const FontFace& face = fonts_[number];
    out.Raw("{");
    out.Word("f", static_cast<int>(number));
    out.Word(kFamilies[face.family % std::size(kFamilies)]);
    if (face.pitch != 0) out.Word("fprq", face.pitch);
    out.Word("fcharset", face.charset);
    out.Raw(" ");
    WriteFontName(face, out);
    out.Raw(";}");
  }
  out.Raw("}\r\n");
}

void WrittenFormats::WriteColourTable(Output& out) const {
  if (colours_.empty()) return;
  out.Raw("{\\colortbl ;");
  for (const Colour colour : colours_) {
    out.Word("red", static_cast<int>(colour & 0xFF));
    out.Word("green", static_cast<int>(colour >> 8 & 0xFF));
    out.Word("blue", static_cast<int>(colour >> 16));
    out.Raw(";");
  }
  out.Raw("}\r\n");
}

}  // namespace lumenote
