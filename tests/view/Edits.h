// Text to look at, and acts of many kinds at random places.
#pragma once
#include <algorithm>
#include <random>
#include <string>
#include <string_view>

#include "surface/DocumentSurface.h"

namespace lumenote {

/// French-looking words, so many characters of them.
inline std::u16string Words(std::size_t length) {
  static constexpr std::u16string_view kWords[] = {u"plante ", u"de ",       u"lisière ", u"à ",
                                                   u"fleurs ", u"pourpres ", u"été, "};
  std::u16string text;
  for (std::size_t i = 0; text.size() < length; ++i) text += kWords[(i * 5 + i / 3) % 7];
  return text.substr(0, length);
}

inline std::u16string RandomNote() {
  return Words(1500) + u"\r\n" + Words(40) + u"\r\n\r\n" + Words(5000) + u"\v\r\n" + Words(300);
}

/// Paragraphs that are laid out in one piece each.
inline std::u16string ShortParagraphs() {
  std::u16string text;
  for (std::size_t i = 0; i < 40; ++i) text += Words(i * 37 % 190) + (i % 9 ? u"\r\n" : u"\v");
  return text;
}

inline int Below(std::mt19937& random, int most) {
  return static_cast<int>(random() % static_cast<unsigned>(most));
}

inline void EditAtRandom(DocumentSurface& surface, std::mt19937& random) {
  const Position length = surface.Content().Length();
  const Position from = Below(random, length + 1);
  surface.UserSelect(from, std::min(length, from + (Below(random, 3) ? 0 : Below(random, 200))));
  static constexpr void (*kEdits[])(DocumentSurface&, std::mt19937&) = {
      [](DocumentSurface& s, std::mt19937&) { s.UserType(u"\r\n"); },
      [](DocumentSurface& s, std::mt19937&) { s.Clear(); },
      [](DocumentSurface& s, std::mt19937& r) { s.SelFontSize(8.0F + Below(r, 12)); },
      [](DocumentSurface& s, std::mt19937& r) { s.SelIndent(100 * Below(r, 9)); },
      [](DocumentSurface& s, std::mt19937& r) { s.SelBullet(Below(r, 2)); },
      [](DocumentSurface& s, std::mt19937&) { s.Undo(); },
      [](DocumentSurface& s, std::mt19937& r) { s.SelText(Words(r() % 400)); },
      [](DocumentSurface& s, std::mt19937& r) {
        s.SetParaFormat({.mask = ParagraphRecord::kSpaceBefore, .spaceBefore = 100 * Below(r, 4)});
      },
      [](DocumentSurface& s, std::mt19937&) { s.UserType(u"mot "); },
      [](DocumentSurface& s, std::mt19937&) { s.UserType(u"mot "); }};
  kEdits[Below(random, std::size(kEdits))](surface, random);
}

}  // namespace lumenote
