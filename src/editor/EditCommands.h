// The clipboard and undo commands of the context menu, and what enables them.
#pragma once
#include <string_view>

#include "platform/RichTextSurface.h"

namespace lumenote {

struct ContextMenu;

/// The label of an undo kind; empty for a kind beyond the known ones.
std::u16string_view LibelleAction(UndoKind kind);
/// Whether at least one character is selected.
bool CanCutCopClr(const RichTextSurface& surface);
/// Enables and labels the entries from the surface's state. A pending redo disables undo.
void UpdateItems(ContextMenu& menu, const RichTextSurface& surface);

}  // namespace lumenote
