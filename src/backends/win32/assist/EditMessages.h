// The messages by which assistive programs ask a text window of its content, and edit it.
#pragma once
#include <optional>

#include "backends/win32/toolkit/Window.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

/// Does what the system's own edit control does, in positions of the document: tells text, lines,
/// characters at points, gets and sets the selection, edits like the user. Nothing for another
/// message.
std::optional<LRESULT> AnswerEdit(NoteView& view, const Message& message);

}  // namespace lumenote
