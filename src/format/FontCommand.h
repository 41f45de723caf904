// The font dialog, applied to the selection.
#pragma once

namespace lumenote {

class EditorWindow;
class Form;

/// Opens the desktop's font dialog on the selection's font; what it answers is one undo step. The
/// font dialog belongs to the dialog that asks for it, or to the editor.
void FmtPolice(EditorWindow& editor, Form* dialog = nullptr);

}  // namespace lumenote
