// What the editor shows nothing of, on its way from the source to the next character.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/FormatTables.h"

namespace lumenote {

/// Gathers items until a character takes them. Those of hostile sources take hardly more room than
/// their source.
class ItemKeeper {
 public:
  bool Pending() const { return !pending_.empty(); }
  void Keep(KeptItem::Kind kind, std::string_view source);
  void Keep(const KeptItems& items);

  /// A place among all items ever kept; it stays good when those before it are taken.
  using Place = std::size_t;
  /// Where the next item goes, which will be one of its own.
  Place Here();
  /// Takes away what has been kept behind `place`.
  KeptItems TakeSince(Place place);
  /// Takes all; what comes behind a great many items is one.
  KeptItems Take();

 private:
  struct Stretch {
    KeptItem::Kind kind;
    std::uint32_t end;  // of its source in `sources_`
  };

  std::vector<Stretch> pending_;
  std::string sources_;
  Place taken_ = 0;      // where `pending_` begins
  bool sealed_ = false;  // the last item stays as it is
};

}  // namespace lumenote
