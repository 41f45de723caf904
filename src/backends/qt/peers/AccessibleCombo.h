// A drop-down list as assistive programs see it.
#pragma once
#include <QComboBox>

#include "backends/qt/toolkit/Spoken.h"

namespace lumenote {

/// Called by its label, not by its text as Qt does; that is the line's, which alone has the focus
/// in an editable box, and the description in another.
class AccessibleCombo final : public AccessibleWidget {
 public:
  AccessibleCombo(QComboBox& combo, const Spoken& spoken)
      : AccessibleWidget(combo, spoken), combo_(combo) {}

  QAccessible::State state() const override;
  QString text(QAccessible::Text what) const override;
  int childCount() const override { return combo_.isEditable() ? 2 : 1; }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;

 private:
  QComboBox& combo_;
};

}  // namespace lumenote
