#include "document/KeptParts.h"

#include "document/kept/Kept.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kSigns(u"\t\r\uFFFC");

bool Stays(const FormatTables& tables, CharId format) {
  return tables.kept[tables.characters[format].kept].kind != Kept::Kind::Character;
}

bool HasWhatStays(const Document& document, Selection range) {
  bool has = false;
  document.ForEachRun(range.start, range.end, [&](Position, TextView, CharId format) {
    has = has || Stays(document.Formats(), format);
  });
  return has;
}

}  // namespace

bool MayHoldKept(std::u16string_view text) {
  return text.find_first_of(kSigns) != std::u16string_view::npos;
}

std::vector<ReplacedPart> CutAroundKept(const Document& document, Selection range,
                                        std::u16string_view text) {
  if (!HasWhatStays(document, range)) return {{range, text}};
  constexpr auto kNone = std::u16string_view::npos;
  const std::u16string old = document.Text(range.start, range.end);
  std::vector<ReplacedPart> parts;
  ReplacedPart rest{range, text};
  for (std::size_t i = old.find_first_of(kSigns); i != kNone;
       i = old.find_first_of(kSigns, i + 1)) {
    const std::size_t sign = rest.text.find_first_of(kSigns);
    if (sign == kNone || rest.text[sign] != old[i]) return {{range, text}};
    const std::size_t length = old[i] == u'\r' ? 2 : 1;
    const Position at = range.start + static_cast<Position>(i);
    parts.push_back({{rest.range.start, at}, rest.text.substr(0, sign)});
    rest = {{at + static_cast<Position>(length), range.end}, rest.text.substr(sign + length)};
  }
  if (MayHoldKept(rest.text)) return {{range, text}};
  parts.push_back(rest);
  return parts;
}

}  // namespace lumenote
