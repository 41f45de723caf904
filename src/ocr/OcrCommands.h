// The commands of the context menu for recognised text.
#pragma once
#include <functional>
#include <string_view>

namespace lumenote {

class EditorWindow;
class Processes;

/// Cleans up the whole note, which stays selected; refuses a plain-text note with a box. A bad line
/// of the correction list and a note beyond 16 bits are run-time errors, with what was replaced
/// until then replaced.
void NettoyerNote(EditorWindow& editor);

/// Copies the selection to the clipboard and shows the learning dialog, which takes it from there.
/// `showModal` returns when the dialog has closed; without a selection a box asks for one instead.
void ApprendreCorrection(EditorWindow& editor, const std::function<void()>& showModal);

/// Opens the correction list in the word processor at `program`, without waiting. A box tells when
/// either file is missing; a failure of the start is the run-time error of `Processes::Start`.
void EditerListCorr(EditorWindow& editor, Processes& processes, std::u16string_view program);

}  // namespace lumenote
