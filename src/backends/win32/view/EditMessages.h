// The messages by which assistive programs ask a text window of its content.
#pragma once
#include <optional>

#include "backends/win32/toolkit/Window.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

/// Answers what the system's own edit control answers, in positions of the document: text,
/// selection, lines, characters at points. Nothing for another message.
std::optional<LRESULT> AnswerEdit(NoteView& view, const Message& message);

}  // namespace lumenote
