#include "document/Links.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/Characters.h"
#include "base/FileAddresses.h"
#include "document/kept/LinkSource.h"

namespace lumenote {

std::u16string LinkOf(const FormatTables& tables, const CharFormat& format) {
  FieldId field = tables.kept[format.kept].field;
  for (; field != 0; field = tables.fields[field].outer)
    if (const auto address = LinkAddress(tables.fields[field].opening)) return *address;
  return {};
}

std::u16string LinkAt(const Document& document, Position position) {
  if (position < 0 || position >= document.Length()) return {};
  const FormatTables& tables = document.Formats();
  return LinkOf(tables, tables.characters[document.CharFormatAt(position)]);
}

namespace {

bool IsHarmlessFile(std::u16string_view address) {
  const std::vector<std::string> paths = PathsOf(address);
  return !paths.empty() && std::ranges::none_of(paths, RunsWhenOpened);
}

}  // namespace

bool MayOpen(std::u16string_view address) {
  constexpr std::array<std::u16string_view, 4> kSchemes{u"http:", u"https:", u"ftp:", u"mailto:"};
  const auto isControl = [](char16_t c) { return c < u' ' || c == u'\x7F'; };
  const std::u16string scheme = Lower(address.substr(0, address.find(u':') + 1));
  const bool known = std::ranges::find(kSchemes, scheme) != kSchemes.end();
  return std::ranges::none_of(address, isControl) && (known || IsHarmlessFile(address));
}

}  // namespace lumenote
