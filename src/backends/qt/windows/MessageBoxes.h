// The forms' message boxes on the desktop.
#pragma once
#include <QWidget>

#include "forms/values/MessageBox.h"

namespace lumenote {

/// Blocks until the user has answered. Escape and the close box say OK where that is all there is
/// to say; they do not answer a question. The box belongs to `over`, which may be null and has the
/// keyboard again afterwards.
MessageBox::Answer ShowMessageBox(const MessageBox& box, QWidget* over);

}  // namespace lumenote
