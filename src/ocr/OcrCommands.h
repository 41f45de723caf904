// The context menu's commands for recognised text.
#pragma once
#include <functional>
#include <string_view>

namespace lumenote {

class EditorWindow;
class Processes;

/// Cleans up the whole note, which stays selected; refuses a plain-text note with a box. A bad line
/// of the correction list, or a note beyond 16 bits, is a run-time error; replacements made before
/// it stay.
void NettoyerNote(EditorWindow& editor);

/// Copies the selection to the clipboard and calls `showModal`, which shows the learning dialog
/// until it is closed. Without a selection a box asks for one instead.
void ApprendreCorrection(EditorWindow& editor, const std::function<void()>& showModal);

/// Opens the correction list in the word processor at `program`, without waiting. A box reports a
/// missing file; a failed start raises the errors of `Processes::Start`.
void EditerListCorr(EditorWindow& editor, Processes& processes, std::u16string_view program);

}  // namespace lumenote
