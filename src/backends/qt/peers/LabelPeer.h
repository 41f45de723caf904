// The peer of labels.
#pragma once
#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/Label.h"

namespace lumenote {

/// Wrapped text from the upper left corner, without the mnemonic's ampersand. The text covers a
/// frame's border behind it.
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
