// Simulated user input: sends real mouse, key and command messages to the windows.
#pragma once
#include "backends/win32/system/System.h"
#include "forms/controls/UserActs.h"

namespace lumenote {

class ControlPeer;
class SurfaceWindow;
class Win32Backend;
class Win32FormPeer;

/// For scripts and tests. Messages reach the windows as the system's do; none need be on a screen.
class Win32UserActs final : public UserActs {
 public:
  /// `backend` must have realised the windows.
  explicit Win32UserActs(Win32Backend& backend) : backend_(backend) {}

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
  Win32FormPeer& PeerOf(const Form& form) const;
  ControlPeer& PeerOf(const Control& control) const;
  HWND WindowOf(const Control& control) const;
  SurfaceWindow& SurfaceOf(const RichTextBox& box) const;

  Win32Backend& backend_;
};

}  // namespace lumenote
