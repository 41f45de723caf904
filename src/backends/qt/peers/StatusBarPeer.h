// The peer of status bars.
#pragma once
#include <QSizeGrip>
#include <QStringList>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/labels/StatusBar.h"

namespace lumenote {

/// Sunken panels in a row, each as wide as its text; at the end the sign and the grip that resizes
/// the window.
class StatusBarWidget : public SpokenWidget {
 public:
  using SpokenWidget::SpokenWidget;

  QAccessible::Role Role() const override { return QAccessible::StatusBar; }
  const QStringList& Panels() const { return panels_; }
  void Panels(const QStringList& texts);
  StatusSign Sign() const { return sign_; }
  const QString& SignTip() const { return signTip_; }
  void Sign(StatusSign sign, const QString& tip);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PaintPanels(QPainter& painter) const;
  void PaintSign(QPainter& painter) const;
  QRect SignBox() const;
  QColor Line() const;

  QStringList panels_;
  StatusSign sign_ = StatusSign::None;
  QString signTip_;
  QSizeGrip grip_{this};
};

class StatusBarPeer final : public ControlPeer {
 public:
  StatusBarPeer(StatusBar& bar, QWidget& parent, LayouterSource&);

  bool IsDocked() const override { return true; }
  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 private:
  StatusBarPeer(StatusBar& bar, StatusBarWidget* widget);
  QStringList Texts() const;

  StatusBar& bar_;
  StatusBarWidget& widget_;
};

}  // namespace lumenote
