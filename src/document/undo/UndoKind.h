// The kinds an undo step can have.
#pragma once

namespace lumenote {

/// The numbers are those of the platform.
enum class UndoKind { Unknown = 0, Typing = 1, Delete = 2, DragDrop = 3, Cut = 4, Paste = 5 };

}  // namespace lumenote
