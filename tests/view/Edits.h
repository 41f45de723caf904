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
  switch (Below(random, 10)) {
    case 0:
      return surface.UserType(u"\r\n");
    case 1:
      return surface.Clear();
    case 2:
      return surface.SelFontSize(static_cast<float>(8 + Below(random, 12)));
    case 3:
      return surface.SelIndent(100 * Below(random, 9));
    case 4:
      return surface.SelBullet(Below(random, 2));
    case 5:
      return surface.Undo();
    case 6:
      return surface.SelText(Words(static_cast<std::size_t>(Below(random, 400))));
    case 7:
      return surface.SetParaFormat(
          {.mask = ParagraphRecord::kSpaceBefore, .spaceBefore = 100 * Below(random, 4)});
    default:
      return surface.UserType(u"mot ");
  }
}

}  // namespace lumenote
