// A view as programs see it that ask by the system's older interface.
#pragma once
#include "backends/win32/assist/ViewLink.h"

namespace lumenote {

/// Answers a WM_GETOBJECT for the client area of a view's window: an editable text, whose value is
/// the note's beginning. The text itself is told by `AnswerEdit`, the caret by the system.
LRESULT AnswerAccessible(const ViewLink& view, WPARAM w);

}  // namespace lumenote
