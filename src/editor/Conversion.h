// Turning the document from plain text into RTF and back, through its file.
#pragma once
#include "editor/NoteWindow.h"

namespace lumenote {

struct ContextMenu;

/// Enables the one of the two entries that leads to the other format.
void UpdateConvertir(ContextMenu& menu, const Session& session);
/// Writes the document under the other extension, loads it again and deletes the old file; a save
/// or load that fails changes nothing at all. Undo does not lead back.
void ConvertirEnRtf(NoteWindow& editor);
/// The same; every format is lost.
void ConvertirEnTexte(NoteWindow& editor);

}  // namespace lumenote
