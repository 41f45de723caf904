// Which menu entries are enabled, and the labels of undo and redo.
#pragma once
#include <string_view>

#include "platform/RichTextSurface.h"

namespace lumenote {

struct ContextMenu;
class Form;

/// The label of an undo kind; empty for an unknown kind.
std::u16string_view LibelleAction(UndoKind kind);
/// Whether anything is selected.
bool CanCutCopClr(const RichTextSurface& surface);
/// Disables every menu entry of the window that has neither a command nor entries of its own.
void DisableEntriesWithoutCommand(const Form& window);
/// Enables and labels the entries. A pending redo disables undo.
void UpdateItems(ContextMenu& menu, const RichTextSurface& surface);

}  // namespace lumenote
