// The forms' message boxes on the desktop.
#pragma once
#include <QWidget>

#include "forms/MessageBox.h"

namespace lumenote {

/// Blocks until the user has answered; Escape and the close box say No, or OK where that is all
/// there is to say. `over` may be null.
MessageBox::Answer ShowMessageBox(const MessageBox& box, QWidget* over);

}  // namespace lumenote
