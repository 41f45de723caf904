// The note's file: creating, naming, loading, saving and deleting it.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextEncoding.h"
#include "editor/NoteWindow.h"

namespace lumenote {

class Files;
class TempFolder;

/// The temporary folder without its trailing backslash.
std::u16string CheminTemp(const TempFolder& temp);
/// Temporary folder, "\TmpFl", prefix, ".", extension.
std::u16string NomFichTemp(const TempFolder& temp, std::u16string_view prefix,
                           std::u16string_view extension);
/// Writes the note as it stands, without a line end of its own, and returns the form: code page
/// 1252 or what `EncodingFor` finds; RTF source has escapes for the characters that are not in that
/// page.
TextEncoding EcritNoteTemp(Files& files, std::u16string_view path, std::u16string_view note);
/// Creates the empty RTF document. A file that another program has made there meanwhile is left
/// alone (PermissionDenied).
void CreFVideRtf(Files& files, std::u16string_view path);
/// The path between three blanks on each side, as the status bar shows it.
std::u16string EspDvtDer(std::u16string_view path);
/// The lower-cased last three characters of a path.
std::u16string FormatDe(std::u16string_view path);
/// How a document of that format is written and read.
FileType TypeDe(std::u16string_view format);
/// Whether a note is RTF source: it begins with "{\rtf" in any letter case.
bool EstNoteRtf(std::u16string_view note);

/// The content of the document in the form that the host gets: plain for "txt", else RTF. A plain
/// note that differs in its line ends alone is given back as it came.
std::u16string ContenuNote(NoteWindow& editor);

/// Deletes the file at `path` unless it is read-only, or the note's own file under another name.
void SupprimerAutreFichier(Files& files, std::u16string_view path, std::u16string_view note);

/// Loads the document path into the surface and sets status, format and label. A failure is told to
/// the user and returned as false; a document that was in the surface before is dirty then. `form`
/// is that of a plain text whose form is known.
bool LoadFilAndIni(NoteWindow& editor, std::optional<TextEncoding> form = std::nullopt);
/// Goes on with the surface where the document path now holds something else: shows that path, and
/// the note is unsaved in its format.
void ContinuerSansRecharger(NoteWindow& editor);
/// Tells the user that the document path could not be loaded.
void DireEchecChargement(NoteWindow& editor);

/// Writes the document to its path. Where another program has changed the file, that state is first
/// kept as a rescue copy, whose path is added to `kept` for the user to be told of when all is
/// done. A failure, of the copy too, leaves the old file whole and stands in the second status
/// panel.
bool EcrireDocument(NoteWindow& editor, std::vector<std::u16string>& kept);
/// Deletes the file at the document path, read-only or not, after the same care; it stays where its
/// state could not be kept.
void SupprimerFichier(NoteWindow& editor, std::vector<std::u16string>& kept);
/// A note kept as x.txt leaves no x.rtf beside it, nor the reverse, in whatever letter case.
void SupprimerJumeaux(NoteWindow& editor);

enum class Sauvegarde { Inutile, Refusee, Faite, Impossible };
/// Saves a dirty document, after a question when `ask`, and deletes its stale twin. A failure
/// leaves the old file whole and the document dirty, and stands in the second status panel.
Sauvegarde SauveFich(NoteWindow& editor, bool ask);
/// String mode: copies the content into the note, for the formats "txt" and "rtf".
void Maj_StrOrChm(NoteWindow& editor);
/// Saves without asking and updates the note.
void EnregistrerNote(NoteWindow& editor);
/// Asks, deletes the file that the question named and empties the note; whether the window is to be
/// closed. Nothing is deleted when the editor has closed meanwhile or edits another file by then.
/// Raises PermissionDenied when the file stays.
bool SupprimerDocument(NoteWindow& editor);

}  // namespace lumenote
