// A view as assistive programs see it.
#pragma once
#include "backends/win32/system/System.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// Answers a WM_GETOBJECT for the client area of a view's window: an editable text, whose value is
/// the note's beginning. The text itself is told by `AnswerEdit`, the caret by the system.
LRESULT AnswerAccessible(HWND window, NoteView& view, WPARAM w);

/// Tell assistive programs.
void AnnounceChange(HWND window);
void AnnounceSelection(HWND window);

}  // namespace lumenote
