// What the peers of controls need of their window and its backend.
#pragma once
#include "backends/win32/text/UniscribeLayouter.h"
#include "backends/win32/toolkit/drawing/Fonts.h"
#include "forms/Control.h"

namespace lumenote {

class PeerHost {
 public:
  virtual ~PeerHost() = default;
  virtual Scale Resolution() const = 0;
  virtual ControlFonts& Fonts() = 0;
  /// What lays out the text of the box's surface.
  virtual UniscribeLayouter& LayouterOf(const Control& box) = 0;
  /// The control has the keyboard.
  virtual void Focused(Control& control) = 0;
  /// A key that its control had no use for: moves the focus, or goes to the form. Returns whether
  /// it was used; the window may be gone then.
  virtual bool UnusedKey(Control& control, const KeyStroke& key) = 0;
  /// Alt and a character: focuses or clicks what has it as its mnemonic, or opens the menu.
  virtual bool UseMnemonic(char16_t character) = 0;
  /// A button or key goes down in the window.
  virtual void Used() = 0;
  /// A mouse button goes down in a control; none is held any more, and the control has handled it.
  virtual void Pressed() = 0;
  virtual void Released() = 0;
};

}  // namespace lumenote
