// Starts a program without waiting for it.
#pragma once
#include <string_view>

#include "session/EditorWindow.h"

namespace lumenote {

class Processes;

/// Starts the OCR program at `path`; does nothing if that is empty. The editor then stays out of
/// always-on-top, so that the program can be in front. A failed start raises the errors of
/// `Processes::Start`.
void OuvrirOcr(EditorWindow& editor, Processes& processes, std::u16string_view path);

}  // namespace lumenote
