// Collects kept items for the next character.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/FormatTables.h"

namespace lumenote {

/// Items are collected until a character takes them. For hostile sources they need hardly more
/// memory than their source.
class ItemKeeper {
 public:
  bool Pending() const { return !pending_.empty(); }
  void Keep(KeptItem::Kind kind, std::string_view source);
  void Keep(const KeptItems& items);
  /// A right edge that the item kept last states.
  void KeepCell(std::int32_t edge);

  /// A position in the sequence of all items ever kept; taking earlier items does not invalidate
  /// it.
  using Index = std::size_t;
  /// Position of the next item, which will not be merged with the last one.
  Index NextIndex();
  /// Removes and returns the items after `index`.
  KeptItems TakeSince(Index index);
  /// Removes and returns all items; beyond a large number, the rest is merged into one.
  KeptItems Take();

 private:
  struct Stretch {
    KeptItem::Kind kind = KeptItem::Kind::Group;
    std::uint32_t end = 0;    // end of its source in `sources_`
    std::uint32_t cells = 0;  // end of its cells in `cells_`
  };

  KeptItem Between(const Stretch& before, const Stretch& stretch) const;

  std::vector<Stretch> pending_;
  std::string sources_;
  std::vector<std::int32_t> cells_;
  Index taken_ = 0;      // position of the first element of `pending_`
  bool sealed_ = false;  // nothing more is merged into the last item
};

}  // namespace lumenote
