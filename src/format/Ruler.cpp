#include "format/Ruler.h"

namespace lumenote {

namespace {

constexpr int kSegments = 36;

}  // namespace

std::u16string RulerRtf() {
  std::u16string ticks;
  for (int segment = 0; segment < kSegments; ++segment) ticks += u"|-------";
  return u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Times New "
         u"Roman;}}\r\n\\viewkind4\\uc1\\pard\\lang1036\\f0\\fs23 " +
         ticks + u"|\r\n\\par }\r\n";
}

Zone ZoneAt(float x, float width, float middleWidth) {
  if (x > 2 * width / 3) return Zone::Right;
  return x >= middleWidth / 3 ? Zone::Middle : Zone::Left;
}

std::u16string_view NameOf(Zone zone) {
  constexpr std::u16string_view kNames[] = {u"Menus", u"Règle", u"Paragraphe"};
  return kNames[static_cast<std::size_t>(zone)];
}

}  // namespace lumenote
