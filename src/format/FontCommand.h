// The font dialog, applied to the selection.
#pragma once

namespace lumenote {

class EditorWindow;
class Form;

/// Opens the desktop's font dialog for the selection; what of its answer differs from what it
/// showed is applied as one undo step, so confirming it as it came states and edits nothing. The
/// owner is the dialog that asks for it, or the editor.
void FmtPolice(EditorWindow& editor, Form* dialog = nullptr);

}  // namespace lumenote
