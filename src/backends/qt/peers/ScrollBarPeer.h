// The peer of scroll bars.
#pragma once
#include <QScrollBar>

#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/buttons/ScrollBar.h"

namespace lumenote {

class ScrollBarPeer final : public ControlPeer {
 public:
  ScrollBarPeer(ScrollBar& bar, QWidget& parent, LayouterSource&);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 private:
  ScrollBarPeer(ScrollBar& bar, QScrollBar* widget);

  ScrollBar& bar_;
  QScrollBar& widget_;
};

}  // namespace lumenote
