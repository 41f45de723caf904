// The forms' message boxes as Qt message boxes.
#pragma once
#include <QWidget>

#include "forms/values/MessageBox.h"

namespace lumenote {

/// Blocks until the user has answered. Escape and the close box mean OK if that is the only button,
/// but do not answer a question. The parent `over`, which may be null, has the focus again
/// afterwards.
MessageBox::Answer ShowMessageBox(const MessageBox& box, QWidget* over);

}  // namespace lumenote
