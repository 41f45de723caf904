// Labels on screen.
#pragma once
#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/Label.h"

namespace lumenote {

/// Text from the upper left corner, wrapped; the mnemonic's ampersand is not shown. The text hides
/// a frame's line behind it.
class LabelWidget : public QWidget {
 public:
  using QWidget::QWidget;

  const QString& Text() const { return text_; }
  void Text(const QString& text);
  void Style(LabelStyle style) { style_ = style; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintCell();

  QString text_;
  LabelStyle style_ = LabelStyle::Text;
};

class LabelPeer final : public ControlPeer {
 public:
  LabelPeer(Label& label, QWidget& parent, LayouterSource&);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  bool ClicksByMouse() const override { return true; }

 private:
  LabelPeer(Label& label, LabelWidget* widget);

  Label& label_;
  LabelWidget& widget_;
};

}  // namespace lumenote
