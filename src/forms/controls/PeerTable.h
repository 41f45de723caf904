// Finds the peer that mirrors a control in a toolkit's table of peers.
#pragma once
#include <memory>
#include <span>
#include <stdexcept>

#include "forms/Control.h"

namespace lumenote {

/// `Peer` is the toolkit's base class of peers; `Context` is what each peer takes behind its
/// control.
template <class Peer, class... Context>
struct PeerTable {
  using Maker = std::unique_ptr<Peer> (*)(Control&, Context...);

  /// A row of the table: the class `Mirror` mirrors controls of the class `Kind`.
  template <class Kind, class Mirror>
  static std::unique_ptr<Peer> Make(Control& control, Context... context) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind ? std::make_unique<Mirror>(*kind, context...) : nullptr;
  }

  /// Makes the peer by the row of the control's class and shows it the control's state.
  static std::unique_ptr<Peer> Realise(std::span<const Maker> rows, Control& control,
                                       Context... context) {
    using enum Property;
    for (const Maker row : rows) {
      auto peer = row(control, context...);
      if (!peer) continue;
      for (const Property property : {Geometry, Font, Caption, Enabled, Checked, Panels, List,
                                      Content, Value, Locked, Sign, ToolTip, Visible})
        peer->Update(property);
      return peer;
    }
    throw std::logic_error("no peer for the control " + control.Name());
  }
};

}  // namespace lumenote
