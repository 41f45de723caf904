#include "ScannedPage.h"

#include "base/Strings.h"

namespace lumenote {

namespace {

constexpr int kPairs = 500;
constexpr std::size_t kLength = 29'000;  // characters

std::string Number(int pair) { return std::to_string(1000 + pair); }

}  // namespace

std::u16string ScannedPage() {
  std::u16string page;
  for (int line = 0; page.size() < kLength; ++line)
    page += u"le rnot" + FromUtf8(Number(line * 7 % kPairs)) + u" ,est  ici;la plante,verte.\r\n";
  return page;
}

std::string Corrections() {
  std::string list;
  for (int pair = 0; pair < kPairs; ++pair)
    list += "rnot" + Number(pair) + "=:=mot" + Number(pair) + "\r\n";
  return list;
}

}  // namespace lumenote
