#include "document/KeptParts.h"

#include "base/Characters.h"
#include "document/kept/Kept.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kSigns(u"\t\r\uFFFC");
constexpr auto kNone = std::u16string_view::npos;

template <class Fits>
bool HasKept(const Document& document, Selection range, Fits fits) {
  const FormatTables& tables = document.Formats();
  bool has = false;
  document.ForEachRun(range.start, range.end, [&](Position, TextView, CharId format) {
    const KeptId kept = tables.characters[format].kept;
    has = has || (kept != 0 && fits(tables.kept[kept]));
  });
  return has;
}

bool IsAny(const Kept&) { return true; }
bool Stays(const Kept& kept) { return kept.kind != Kept::Kind::Character; }

bool SameLetters(std::u16string_view one, std::u16string_view other) {
  return one.size() == other.size() && Upper(one) == Upper(other);
}

/// Between tabs, breaks and objects that both texts have; nothing if they differ in them.
std::vector<ReplacedPart> CutAtSigns(std::u16string_view old, Selection range,
                                     std::u16string_view text) {
  std::vector<ReplacedPart> parts;
  ReplacedPart rest{range, text};
  for (std::size_t i = old.find_first_of(kSigns); i != kNone;
       i = old.find_first_of(kSigns, i + 1)) {
    const std::size_t sign = rest.text.find_first_of(kSigns);
    if (sign == kNone || rest.text[sign] != old[i]) return {};
    const std::size_t length = old[i] == u'\r' ? 2 : 1;
    const Position at = range.start + static_cast<Position>(i);
    parts.push_back({{rest.range.start, at}, rest.text.substr(0, sign)});
    rest = {{at + static_cast<Position>(length), range.end}, rest.text.substr(sign + length)};
  }
  if (rest.text.find_first_of(kSigns) != kNone) return {};
  parts.push_back(rest);
  return parts;
}

/// Cuts a part, whose text is as long as what it replaces, where something else is kept.
void CutAtKept(const Document& document, const ReplacedPart& part,
               std::vector<ReplacedPart>& pieces) {
  const std::size_t first = pieces.size();
  document.ForEachRun(part.range.start, part.range.end, [&](Position at, TextView run, CharId id) {
    const KeptId kept = document.Formats().characters[id].kept;
    const Position end = at + static_cast<Position>(run.Size());
    const bool goesOn = pieces.size() > first && pieces.back().kept == kept;
    if (!goesOn) pieces.push_back({{at, end}, {}, kept});
    ReplacedPart& piece = pieces.back();
    piece.range.end = end;
    piece.text = part.text.substr(static_cast<std::size_t>(piece.range.start - part.range.start),
                                  static_cast<std::size_t>(piece.range.Length()));
  });
}

}  // namespace

bool MayKeep(const Document& document, std::u16string_view text, std::u16string_view replacement) {
  return text.find_first_of(kSigns) != kNone ||
         (SameLetters(text, replacement) && HasKept(document, {0, document.Length()}, IsAny));
}

std::vector<ReplacedPart> CutAroundKept(const Document& document, Selection range,
                                        std::u16string_view text) {
  std::vector<ReplacedPart> whole{{range, text}};
  if (!HasKept(document, range, IsAny)) return whole;
  const std::u16string old = document.Text(range.start, range.end);
  const bool sameLetters = SameLetters(old, text);
  if (!sameLetters && !HasKept(document, range, Stays)) return whole;
  std::vector<ReplacedPart> parts = CutAtSigns(old, range, text);
  if (parts.empty()) return whole;
  if (!sameLetters) return parts;
  std::vector<ReplacedPart> pieces;
  for (const ReplacedPart& part : parts) CutAtKept(document, part, pieces);
  return pieces;
}

}  // namespace lumenote
