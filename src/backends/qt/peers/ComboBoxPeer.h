// The peer of drop-down lists.
#pragma once
#include <QComboBox>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/Spoken.h"
#include "forms/controls/edits/ComboBox.h"

namespace lumenote {

/// Signals before its list opens. `activated` is emitted only for a choice from the open list: keys
/// open the list first, and neither the wheel nor leaving the box nor Return chooses.
class ComboBoxWidget : public QComboBox, public Spoken {
 public:
  ComboBoxWidget(ComboBox& combo, QWidget* parent);

  void Detach() { combo_ = nullptr; }
  void showPopup() override;
  QAccessible::Role Role() const override { return QAccessible::ComboBox; }
  QAccessibleInterface* MakeInterface(QWidget&) override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void KeepTextApart();

  ComboBox* combo_;
};

class ComboBoxPeer final : public ControlPeer {
 public:
  ComboBoxPeer(ComboBox& combo, QWidget& parent, LayouterSource&);
  ~ComboBoxPeer() override;

  void Update(Property property) override;
  void ShowName() override;
  void Compare(DifferenceList& differences) const override;

 private:
  ComboBoxPeer(ComboBox& combo, ComboBoxWidget* widget);
  void ShowList();
  void ShowContent();
  QStringList Entries() const;

  ComboBox& combo_;
  QPointer<ComboBoxWidget> widget_;
};

}  // namespace lumenote
