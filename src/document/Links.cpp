#include "document/Links.h"

#include <algorithm>
#include <array>

#include "base/Characters.h"
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

bool MayOpen(std::u16string_view address) {
  constexpr std::array<std::u16string_view, 5> kSchemes{u"http:", u"https:", u"ftp:", u"mailto:",
                                                        u"file:"};
  const auto isControl = [](char16_t c) { return c < u' ' || c == u'\x7F'; };
  const std::u16string scheme = Lower(address.substr(0, address.find(u':') + 1));
  return std::ranges::find(kSchemes, scheme) != kSchemes.end() &&
         std::ranges::none_of(address, isControl);
}

}  // namespace lumenote
