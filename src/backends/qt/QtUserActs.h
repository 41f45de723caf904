// Simulated user input: posts real mouse, key and drop events to the widgets.
#pragma once
#include <QEvent>
#include <QPointF>
#include <QWidget>

#include "backends/qt/toolkit/WidgetRegistry.h"
#include "base/Position.h"
#include "forms/controls/UserActs.h"

namespace lumenote {

class QtBackend;
class RichTextView;

/// For scripts and tests. Events reach the widgets as the desktop's do; the window need not be on a
/// screen.
class QtUserActs final : public UserActs {
 public:
  /// `backend` must have realised the windows.
  explicit QtUserActs(QtBackend& backend);

  void Click(Control& control) override;
  void DoubleClick(Control& control) override;
  void Choose(Menu& entry) override;
  void Open(Menu& menu) override;
  void Type(Control& control, std::u16string_view text) override;
  void Key(Control& control, const KeyStroke& key) override;
  void Select(RichTextBox& box, Position start, Position length) override;
  void Mouse(Control& control, MouseAct act, const MouseEvent& event) override;
  void Drag(RichTextBox& box, Position start, Position length, Position to) override;
  void Spin(UpDown& spinner, bool up) override;
  void Pick(ComboBox& combo, int index) override;
  void Drop(ComboBox& combo) override;
  void Resize(Form& form, float width, float height) override;
  void Activate(Form& form) override;
  void Close(Form& form) override;

 private:
  RichTextView& ViewOf(RichTextBox& box) const;

  QtBackend& backend_;
  WidgetRegistry& widgets_;
};

}  // namespace lumenote
