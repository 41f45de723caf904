// The context menu's clipboard and undo commands, and when they are enabled.
#pragma once
#include <string_view>

#include "platform/RichTextSurface.h"

namespace lumenote {

struct ContextMenu;

/// The label of an undo kind; empty for an unknown kind.
std::u16string_view LibelleAction(UndoKind kind);
/// Whether anything is selected.
bool CanCutCopClr(const RichTextSurface& surface);
/// Enables and labels the entries. A pending redo disables undo.
void UpdateItems(ContextMenu& menu, const RichTextSurface& surface);

}  // namespace lumenote
