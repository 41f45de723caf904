#include "document/kept/NumberingSource.h"

#include <string_view>

namespace lumenote {
namespace {

std::string_view NumberWord(char style) {
  switch (style) {
    case 'a':
      return "\\pnlcltr";
    case 'A':
      return "\\pnucltr";
    case 'i':
      return "\\pnlcrm";
    case 'I':
      return "\\pnucrm";
    default:
      return "\\pndec";
  }
}

}  // namespace

std::string NumberingGroup(char style, int start) {
  return "{\\*\\pn\\pnlvlbody" + std::string(NumberWord(style)) + "\\pnstart" +
         std::to_string(start) + "{\\pntxta .}}";
}

}  // namespace lumenote
