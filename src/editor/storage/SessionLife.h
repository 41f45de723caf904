// The lifetime of an editing session: preparing the note's file, and what closing does.
#pragma once
#include <optional>
#include <string_view>

#include "base/TextEncoding.h"
#include "editor/storage/NoteWindow.h"
#include "session/Session.h"

namespace lumenote {

/// Resets the session's values of the previous editor.
void CommencerSession(Session& session);
/// File mode: creates a missing "txt" or "rtf" file and reads the read-only attribute. String mode:
/// writes the note to its temporary file, which becomes the document path, and returns its
/// encoding; file errors propagate, since the old file might hold another note.
std::optional<TextEncoding> PreparerDocument(NoteWindow& editor);
/// Prepares and loads the document. Reports a failure to the user and returns false.
bool OuvrirDocument(NoteWindow& editor);

/// Decides about closing: refuses the changes of a read-only note, asks whether to save, deletes
/// the twin, and stores the window's geometry unless changes were refused. Returns whether the
/// window may go; it must stay if the note cannot be kept anywhere.
bool TerminerEdition(NoteWindow& editor);
/// The same for any editor, loaded or not, and returns a string note to the host.
bool FermerNote(NoteWindow& editor);
/// Makes a note that the host wrote while the editor was open the next one to open; after a
/// deletion makes that an empty note, so that the file is not created again.
void CloreSession(Session& session);
/// Stores the host's note or path, and the mode that it selects.
void PrendreNote(Session& session, std::u16string_view noteOrPath, NoteKind kind);

}  // namespace lumenote
