// The font dialog, applied to the selection.
#pragma once

namespace lumenote {

class EditorWindow;
class Form;

/// Opens the desktop's font dialog for the selection; the answer is applied as one undo step. The
/// owner is the dialog that asks for it, or the editor.
void FmtPolice(EditorWindow& editor, Form* dialog = nullptr);

}  // namespace lumenote
