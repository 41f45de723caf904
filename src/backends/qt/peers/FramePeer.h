// The peer of frames.
#pragma once
#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/labels/Frame.h"

namespace lumenote {

/// An etched border with the title in its top edge, transparent to the background. Controls that
/// are too wide end before its right side.
class FrameWidget : public SpokenWidget {
 public:
  using SpokenWidget::SpokenWidget;

  QAccessible::Role Role() const override { return QAccessible::Grouping; }
  const QString& Title() const { return title_; }
  void Title(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void childEvent(QChildEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Clip(QWidget& child) const;

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
