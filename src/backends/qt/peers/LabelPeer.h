// The peer of labels.
#pragma once
#include <QLabel>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {

/// Wrapped text from the upper left corner, without the mnemonic's ampersand. A title covers
/// a frame's border behind it. A strip shows nothing until the pointer is over it.
class LabelWidget : public QLabel, public Spoken {
 public:
  explicit LabelWidget(QWidget* parent) : QLabel(parent) {}

  QAccessible::Role Role() const override {
    return style_ == LabelStyle::Strip ? QAccessible::Button : QAccessible::StaticText;
  }
  QWidget* LabelFor() const override { return buddy(); }
  const QString& Text() const { return text_; }
  void Text(const QString& text);
  void Style(LabelStyle style);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintCell();
  void PaintTitle();
  void PaintStrip();

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
  void ShowToolTip();

  Label& label_;
  LabelWidget& widget_;
};

}  // namespace lumenote
