// Creates, names, loads, saves and deletes the note's file.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextEncoding.h"
#include "editor/storage/NoteWindow.h"

namespace lumenote {

class Files;
class TempFolder;

/// The temporary folder without a trailing backslash.
std::u16string CheminTemp(const TempFolder& temp);
/// Temporary folder, "\TmpFl", prefix, ".", extension.
std::u16string NomFichTemp(const TempFolder& temp, std::u16string_view prefix,
                           std::u16string_view extension);
/// Writes the note without adding a line end and returns the encoding: code page 1252, or the
/// result of `EncodingFor`. RTF source gets escapes for characters outside that page.
TextEncoding EcritNoteTemp(Files& files, std::u16string_view path, std::u16string_view note);
/// Writes an empty RTF document, over an existing file.
void CreFVideRtf(Files& files, std::u16string_view path);
/// Creates an empty document if its path names a kind that the editor knows. A file that is there
/// after all is left alone (PermissionDenied): one that cannot be looked at only seems missing.
void CreerSiAbsent(Files& files, std::u16string_view path);
/// The path between three spaces on each side, for the status bar.
std::u16string EspDvtDer(std::u16string_view path);
/// The last three characters of a path, lower-cased.
std::u16string FormatDe(std::u16string_view path);
/// The file type of a document of that format.
FileType TypeDe(std::u16string_view format);
/// Whether a note is RTF source, that is begins with "{\rtf" in any letter case.
bool EstNoteRtf(std::u16string_view note);

/// The document's content as the host gets it: plain text for "txt", else RTF. A plain note in
/// which only line ends differ is returned in its original form.
std::u16string ContenuNote(NoteWindow& editor);

/// Deletes the file at `path`, unless it is read-only or is the note's own file under another name.
void SupprimerAutreFichier(Files& files, std::u16string_view path, std::u16string_view note);

/// Loads the document path into the surface and sets status, format and label. Reports a failure to
/// the user and returns false; a document already in the surface is then dirty. `form` is the
/// encoding of a plain text, if known.
bool LoadFilAndIni(NoteWindow& editor, std::optional<TextEncoding> form = std::nullopt);
/// Keeps the surface although the document path now holds something else: shows that path, and
/// makes the note dirty in that format.
void ContinuerSansRecharger(NoteWindow& editor);
/// Tells the user that the document could not be loaded.
void DireEchecChargement(NoteWindow& editor);

/// Writes the document to its path. If another program has changed the file, first keeps that
/// version as a rescue copy and appends its path to `kept`, to be announced later. If either fails,
/// the old file stays whole and the second status panel reports it.
bool EcrireDocument(NoteWindow& editor, std::vector<std::u16string>& kept);
/// The same, announced at once.
bool EcrireEtAnnoncer(NoteWindow& editor);
/// Deletes the file at the document path, even if read-only, with the same precaution. The file
/// stays if its changed version could not be kept.
void SupprimerFichier(NoteWindow& editor, std::vector<std::u16string>& kept);
/// Deletes the twin in the other format: x.rtf for a note in x.txt and the reverse, in any letter
/// case.
void SupprimerJumeaux(NoteWindow& editor);

enum class Sauvegarde { Inutile, Refusee, Faite, Impossible };
/// Saves a dirty document, after a question if `ask`, and deletes its stale twin. On failure the
/// old file stays whole, the document stays dirty, and the second status panel reports it.
Sauvegarde SauveFich(NoteWindow& editor, bool ask);
/// String mode: copies the content to the note, for the formats "txt" and "rtf".
void Maj_StrOrChm(NoteWindow& editor);
/// Saves without a question and updates the note.
void EnregistrerNote(NoteWindow& editor);
/// Asks, then deletes the file named in the question and empties the note; returns whether to close
/// the window. Deletes nothing if the editor has meanwhile closed or changed to another file.
/// Raises PermissionDenied if the file cannot be deleted.
bool SupprimerDocument(NoteWindow& editor);

}  // namespace lumenote
