#include "document/kept/Kept.h"

#include "document/formats/InternTable.h"

namespace lumenote {

const std::string& TintOf(const KeptHead& head, std::size_t colour) {
  static const std::string kNone;
  return colour < head.tints.size() ? head.tints[colour] : kNone;
}

std::uint64_t HashOf(const KeptItem& item) {
  return HashOf(item.source) * 31 + item.next + static_cast<std::uint64_t>(item.kind);
}

std::uint64_t HashOf(const KeptField& field) {
  const std::uint32_t rest[] = {field.outer, field.serial};
  return HashOf(field.opening) ^ HashBytes(rest, sizeof rest);
}

std::uint64_t HashOf(const KeptHead& head) {
  const ItemId chains[] = {head.items, head.tail};
  return HashBytes(chains, sizeof chains) ^ HashOf(head.fontTable);
}

}  // namespace lumenote
