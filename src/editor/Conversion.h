// Converts the document between plain text and RTF, through its file.
#pragma once
#include "editor/storage/NoteWindow.h"

namespace lumenote {

struct ContextMenu;

/// Enables the entry that converts to the other format.
void UpdateConvertir(ContextMenu& menu, const Session& session);
/// Writes the document with the other extension, reloads it and deletes the old file; if saving or
/// loading fails, nothing changes. Not undoable.
void ConvertirEnRtf(NoteWindow& editor);
/// The same; all formats are lost.
void ConvertirEnTexte(NoteWindow& editor);

}  // namespace lumenote
