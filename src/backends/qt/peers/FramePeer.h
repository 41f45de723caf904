// Frames on screen.
#pragma once
#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/Frame.h"

namespace lumenote {

/// An etched line with the title in its upper side; the ground behind it shows through.
class FrameWidget : public QWidget {
 public:
  using QWidget::QWidget;

  const QString& Title() const { return title_; }
  void Title(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString title_;
};

class FramePeer final : public ControlPeer {
 public:
  FramePeer(Frame& frame, QWidget& parent, LayouterSource&);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 private:
  FramePeer(Frame& frame, FrameWidget* widget);

  Frame& frame_;
  FrameWidget& widget_;
};

}  // namespace lumenote
