// Rescue copies: content that cannot be saved in its own place goes to the personal documents
// folder, and the user is told.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "extapps/WorkCopies.h"
#include "session/EditorWindow.h"

namespace lumenote {

class Platform;

/// Writes a new file "Secours_" and the last component of `name`, numbered where an earlier one has
/// that name, into the personal documents, else into the component's state folder. Its path; empty
/// when it could be written in neither.
std::optional<std::u16string> EcrireSecours(Platform& machine, std::u16string_view name,
                                            std::string_view bytes);
/// The same of a file as it is on the disk; empty when it cannot be read, too.
std::optional<std::u16string> CopierFichier(Platform& machine, std::u16string_view path);
/// Tells of copies that were made for one cause, in one box; of none, nothing.
void AnnoncerSecours(EditorWindow& editor, Cause cause, const std::vector<std::u16string>& paths);

/// Writes the window's content as a rescue copy named after the note's file and reports it to the
/// user. Returns false, without a message, when no copy could be written.
bool GarderNote(EditorWindow& editor, Cause cause);

/// Makes rescue copies of what programs have saved for editors that have closed, when their control
/// goes, and tells of them in one box. What a program saves later, or what finds no place now, is
/// left to the next start; false when there is such a result already.
bool GarderRetours(Platform& machine, const std::vector<SentWorkFile>& outstanding);

/// Makes rescue copies of the notes that dead programs left, and of what other programs have saved
/// for them since, and tells of them in one box. A note that its file holds already is none; what
/// can be written nowhere stays for the next start.
void RetrouverNotes(EditorWindow& editor);

}  // namespace lumenote
