// The font dialog, applied to the selection.
#pragma once

namespace lumenote {

class EditorWindow;

/// Opens the desktop's font dialog on the selection's font; what it answers is one undo step.
void FmtPolice(EditorWindow& editor);

}  // namespace lumenote
