// The life of an editing session: preparing the note's file, deciding what closing does.
#pragma once
#include <optional>
#include <string_view>

#include "base/TextEncoding.h"
#include "editor/NoteWindow.h"
#include "session/Session.h"

namespace lumenote {

/// Forgets what the editor before left in the session's values.
void CommencerSession(Session& session);
/// File mode: creates a missing "txt" or "rtf" file and reads the read-only attribute. String
/// mode: writes the note to its temporary file, which becomes the document path, and returns its
/// form; raises what the file system does, since another note may be left over there.
std::optional<TextEncoding> PreparerDocument(NoteWindow& editor);
/// Prepares and loads the document. A failure is told to the user and returned as false.
bool OuvrirDocument(NoteWindow& editor);

enum class Fermeture { Complete, SansGeometrie, Annulee };
/// The closing decision: refuses the changes of a read-only note, asks whether to save, deletes the
/// twin of the note's file. Says whether the geometry is to be stored, or that the window must
/// stay, since the note could be kept nowhere else.
Fermeture TerminerEdition(NoteWindow& editor);
/// Takes a note that the host wrote while the editor was open for the next opening; after a
/// deletion an empty one, so that the file is not created again.
void CloreSession(Session& session);
/// The host's note or path, and the mode that it means.
void PrendreNote(Session& session, std::u16string_view noteOrPath, NoteKind kind);

}  // namespace lumenote
