#include "view/layout/ShownText.h"

#include <algorithm>

#include "base/Characters.h"

namespace lumenote {

int FirstHanging(std::u16string_view text, int start, int end) {
  constexpr char16_t kHanging[] = {u' ', kShownHidden, kShownLineBreak, u'\0'};
  const auto first = static_cast<std::size_t>(start);
  const std::u16string_view line = text.substr(first, static_cast<std::size_t>(end) - first);
  return start + static_cast<int>(line.find_last_not_of(kHanging) + 1);
}

ShownText::ShownText(const Document& document, Position from, Position to, const Looks& lookOf)
    : first_(document.CharFormatAt(from)) {
  text.reserve(static_cast<std::size_t>(to - from));
  document.ForEachRun(from, to, [&](Position, TextView run, CharId format) {
    Append(run.String(), format, lookOf(format));
  });
}

void ShownText::Append(std::u16string run, CharId format, const CharLook& look) {
  const int start = static_cast<int>(text.size());
  if (runs.empty() || runs.back().format != format) runs.push_back({start, format});
  AppendParts(run, format, look.smallCapitals);
  if (look.hidden) {
    text.append(run.size(), kShownHidden);
  } else {
    ShowSigns(run, look.signs);
    if (look.capitals) run = Upper(run);
    std::ranges::replace(run, u'\v', kShownLineBreak);
    std::ranges::replace(run, kObjectCharacter, kShownObject);
    text += run;
  }
  for (const Decoration& decoration : DecorationsOf(look, start, static_cast<int>(text.size())))
    decorations.push_back(decoration);
}

void ShownText::AppendParts(std::u16string_view run, CharId format, bool smallCapitals) {
  const auto isSmall = [&](char16_t c) { return smallCapitals && ToUpper(c) != c; };
  int at = static_cast<int>(text.size());
  for (std::size_t from = 0; from < run.size();) {
    const bool small = isSmall(run[from]);
    std::size_t to = smallCapitals ? from + 1 : run.size();
    while (to < run.size() && isSmall(run[to]) == small) ++to;
    const int end = at + static_cast<int>(to - from);
    if (!parts.empty() && parts.back().format == format && parts.back().reduced == small)
      parts.back().end = end;
    else
      parts.push_back({at, end, format, small});
    at = end;
    from = to;
  }
}

void ShownText::Insert(int at, std::u16string_view composed) {
  const int length = static_cast<int>(composed.size());
  if (parts.empty()) parts.push_back({.format = first_});
  text.insert(static_cast<std::size_t>(at), composed);
  for (ShownPart& part : parts) {
    if (part.start >= at && part.start > 0) part.start += length;
    if (part.end >= at) part.end += length;
  }
  for (Decoration& decoration : decorations) {
    if (decoration.start >= at) decoration.start += length;
    if (decoration.end > at) decoration.end += length;
  }
  for (PieceRun& run : runs)
    if (run.start >= at && run.start > 0) run.start += length;
}

}  // namespace lumenote
