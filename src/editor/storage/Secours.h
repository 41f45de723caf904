// Rescue copies: content that cannot be saved to its own file goes to the personal documents, and
// the user is told.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "extapps/WorkCopies.h"
#include "session/EditorWindow.h"

namespace lumenote {

class Platform;

/// Writes a new file, named "Secours_" and the last component of `name`, with a number if that is
/// taken, to the personal documents, else to the component's state folder. Returns its path; empty
/// if neither could be written.
std::optional<std::u16string> EcrireSecours(Platform& machine, std::u16string_view name,
                                            std::string_view bytes);
/// The same for a file on the disk; also empty if that cannot be read.
std::optional<std::u16string> CopierFichier(Platform& machine, std::u16string_view path);
/// Tells the user in one box of the copies made for one cause, if there are any.
void AnnoncerSecours(EditorWindow& editor, Cause cause, const std::vector<std::u16string>& paths);

/// Writes the note as a rescue copy named after its file and tells the user. Returns false, without
/// a message, if no copy could be written.
bool GarderNote(EditorWindow& editor, Cause cause);

/// To be called when a control is destroyed: makes rescue copies of the results of its outstanding
/// work files and tells the user in one box. Later results, and those that cannot be written now,
/// are left to the next start; returns false if there is one of the latter.
bool GarderRetours(Platform& machine, const std::vector<SentWorkFile>& outstanding);

/// Makes rescue copies of the notes that dead programs left, and of what other programs have saved
/// for them since, and tells the user in one box. Skips a note equal to its file; what cannot be
/// written stays for the next start.
void RetrouverNotes(EditorWindow& editor);

}  // namespace lumenote
