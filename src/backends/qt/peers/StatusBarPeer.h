// The peer of status bars.
#pragma once
#include <QStringList>

#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/StatusBar.h"

namespace lumenote {

/// Sunken panels in a row, each as wide as its text.
class StatusBarWidget : public QWidget {
 public:
  using QWidget::QWidget;

  const QStringList& Panels() const { return panels_; }
  void Panels(const QStringList& texts);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList panels_;
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
