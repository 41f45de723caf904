// The base of peers: the native window of one control.
#pragma once
#include <memory>

#include "backends/win32/assist/Annotation.h"
#include "backends/win32/peers/base/PeerHost.h"
#include "backends/win32/toolkit/Window.h"
#include "forms/Control.h"
#include "forms/Differences.h"

namespace lumenote {

/// Common to all controls; each kind has a derived class. The native window may outlive the peer
/// while its messages are handled; it is hidden and tells nobody anything then.
class ControlPeer : protected MessageListener {
 public:
  ControlPeer(Control& control, std::shared_ptr<Window> window, PeerHost& host);
  ~ControlPeer() override;
  ControlPeer(const ControlPeer&) = delete;
  ControlPeer& operator=(const ControlPeer&) = delete;

  Window& Native() const { return *window_; }
  /// Whether the window docks it at its lower edge.
  virtual bool IsDocked() const { return false; }
  /// The window that has the keyboard when the control has.
  virtual HWND FocusTarget() const { return Handle(); }

  /// Copies the changed state from the control.
  virtual void Update(Property property);
  /// Tells assistive programs that do not ask its window what it is called.
  virtual void ShowName();
  virtual void Compare(DifferenceList& differences) const;
  /// Marks the control as the one that Return clicks, or not; only push buttons show it.
  virtual void ShowDefault(bool) {}
  /// The window has come to a screen of another resolution.
  virtual void Rescale();

 protected:
  std::optional<LRESULT> Hear(const Message& message) override;
  void HearHandled(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message&) override { return std::nullopt; }

  /// What it is, as a ROLE_SYSTEM_... number; 0 if its window says so itself.
  virtual LONG Role() const = 0;
  /// Whether the native control itself uses the key.
  virtual bool Wants(const KeyStroke&) const { return false; }
  /// Whether pressing and releasing the left button is a click; native buttons report clicks
  /// themselves.
  virtual bool ClicksByMouse() const { return false; }
  /// Whether the window's mouse and keys are reported by this class.
  virtual bool PassesInput() const { return true; }
  virtual void Place(const RECT& bounds);

  HWND Handle() const { return window_->Handle(); }
  PeerHost& Host() const { return host_; }
  LRESULT Tell(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(Handle(), message, w, l);
  }
  LRESULT Tell(UINT message, WPARAM w, const std::u16string& text) const {
    return Tell(message, w, reinterpret_cast<LPARAM>(text.c_str()));
  }

  std::optional<LRESULT> HearKey(const Message& message);

 private:
  void ShowFont();
  void ShowVisible();
  void ShowEnabled();
  void LeaveFocus();
  bool PassWheel(const Message& message);
  void HearMouse(const Message& message);

  Control& control_;
  std::shared_ptr<Window> window_;
  PeerHost& host_;
  Annotation annotation_;
  int turned_ = 0;  // the wheel, since its last whole notch
};

/// Creates the peer for any kind of control, its window a child of `parent`, in the control's
/// state.
std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, HWND parent, PeerHost& host);

}  // namespace lumenote
