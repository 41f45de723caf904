// Starting a program beside the editor and leaving it to the user.
#pragma once
#include <string_view>

#include "session/EditorWindow.h"

namespace lumenote {

class Processes;

/// Starts the OCR program at `path`; nothing happens when there is none. The editor stays out of
/// its always-on-top state afterwards, so that the program can keep the foreground. A failure of
/// the start is the run-time error of `Processes::Start`.
void OuvrirOcr(EditorWindow& editor, Processes& processes, std::u16string_view path);

}  // namespace lumenote
