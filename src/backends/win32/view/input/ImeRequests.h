// What input methods ask of a window.
#pragma once
#include "backends/win32/toolkit/Window.h"
#include "view/pane/NoteView.h"

// After the system's own header.
#include <imm.h>

namespace lumenote {

/// The answer to a WM_IME_REQUEST: where text is, what stands around the caret, and what of it may
/// be converted again; 0 where there is none. The view's layouter must be Uniscribe's.
LRESULT AnswerRequest(HWND window, NoteView& view, const Message& message);

/// Where an input method shows what it has to show for a caret.
COMPOSITIONFORM CompositionFormOf(const PixelRect& caret);
CANDIDATEFORM CandidateFormOf(const PixelRect& caret);

}  // namespace lumenote
