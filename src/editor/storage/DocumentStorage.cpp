#include "editor/storage/DocumentStorage.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "editor/storage/FileState.h"
#include "editor/storage/Secours.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"
#include "session/Session.h"
#include "surface/editing/SourceBytes.h"

namespace lumenote {

namespace {

constexpr std::string_view kEmptyRtf =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1036{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
    "\\viewkind4\\uc1\\pard\\fs20\r\n"
    "\\par }\r\n";

/// Sets what the host reads back after a save, unless it has written another note.
void PutNote(Session& session, std::u16string value) {
  if (!session.noteReplaced) session.note = std::move(value);
}

/// Keeps the document's file as a rescue copy if another program has changed it since this editor
/// read or wrote it. Returns the copy's path; empty if the file is unchanged. Raises PathAccess if
/// the copy cannot be stored, and what reading the file raises.
std::optional<std::u16string> KeepOtherState(NoteWindow& editor) {
  Session& session = editor.Values();
  const std::u16string& path = session.documentPath;
  const Files& files = editor.Services().FileSystem();
  if (!files.Exists(path) || IsUntouched(files, editor.OnDisk(), path)) return std::nullopt;
  const std::string bytes = files.ReadAll(path);
  FileState state = StateOf(path, bytes);
  if (IsSameContent(state, editor.OnDisk())) return std::nullopt;
  auto copy = EcrireSecours(editor.Services(), path, bytes);
  if (!copy) throw RuntimeError(ErrorNumber::PathAccess);
  editor.OnDisk() = std::move(state);
  return copy;
}

/// Updates status, format and label from the document path.
FileType ShowDocumentPath(NoteWindow& editor) {
  Session& session = editor.Values();
  editor.ShowStatus(1, EspDvtDer(session.documentPath));
  session.format = FormatDe(session.documentPath);
  const FileType type = TypeDe(session.format);
  editor.ShowFormat(type == FileType::Text ? u"Format Text (txt)" : u"Format RichText (rtf)");
  return type;
}

/// Stops another editor from saving between a check of the document's file and what follows. A
/// temporary file needs no lock.
std::shared_ptr<void> LockFolder(NoteWindow& editor) {
  const Session& session = editor.Values();
  if (!session.fileMode) return nullptr;
  return editor.Services().FileSystem().LockFolder(session.documentPath);
}

}  // namespace

std::u16string CheminTemp(const TempFolder& temp) {
  std::u16string path = temp.Path();
  if (path.ends_with(u'\\')) path.pop_back();
  return path;
}

std::u16string NomFichTemp(const TempFolder& temp, std::u16string_view prefix,
                           std::u16string_view extension) {
  return CheminTemp(temp) + u"\\TmpFl" + std::u16string(prefix) + u"." + std::u16string(extension);
}

TextEncoding EcritNoteTemp(Files& files, std::u16string_view path, std::u16string_view note) {
  const TextEncoding form = EstNoteRtf(note) ? TextEncoding::Windows1252 : EncodingFor(note);
  files.Write(path, EstNoteRtf(note) ? EncodeSource(note) : EncodeText(note, form));
  return form;
}

void CreFVideRtf(Files& files, std::u16string_view path) { files.Write(path, kEmptyRtf); }

void CreerSiAbsent(Files& files, std::u16string_view path) {
  const std::u16string format = FormatDe(path);
  if (format == u"rtf" || format == u"txt")
    files.WriteNew(path, format == u"rtf" ? kEmptyRtf : "", Permissions::Default);
}

std::u16string EspDvtDer(std::u16string_view path) {
  return u"   " + std::u16string(path) + u"   ";
}

std::u16string FormatDe(std::u16string_view path) {
  return Lower(path.substr(path.size() - std::min<std::size_t>(path.size(), 3)));
}

FileType TypeDe(std::u16string_view format) {
  return format == u"txt" ? FileType::Text : FileType::Rtf;
}

bool EstNoteRtf(std::u16string_view note) { return Lower(note.substr(0, 5)) == u"{\\rtf"; }

std::u16string ContenuNote(NoteWindow& editor) {
  const Session& session = editor.Values();
  if (session.format != u"txt") return editor.Document().TextRTF();
  std::u16string text = editor.Document().Text();
  return WithCrLf(session.note) == text ? session.note : text;
}

void SupprimerAutreFichier(Files& files, std::u16string_view path, std::u16string_view note) {
  if (files.SameFile(path, note)) return;
  IgnoringErrors([&] { files.Delete(path, false); });
}

void DireEchecChargement(NoteWindow& editor) {
  editor.AskOver({.text = u"Impossible de Charger le fichier\r\n" + editor.Values().documentPath,
                  .icon = MessageBox::Icon::Critical});
}

bool LoadFilAndIni(NoteWindow& editor, std::optional<TextEncoding> form) {
  Session& session = editor.Values();
  const FileType type = ShowDocumentPath(editor);
  const std::u16string& path = session.documentPath;
  const FileTime time = SettledTime(editor.Services().FileSystem(), path);
  const bool loaded = IgnoringErrors(
      [&] { editor.OnDisk() = StateOf(path, editor.Document().LoadFile(path, type, form), time); });
  session.dirty = session.loaded && !loaded;
  if (!loaded) DireEchecChargement(editor);
  return loaded;
}

void ContinuerSansRecharger(NoteWindow& editor) {
  ShowDocumentPath(editor);
  editor.Values().dirty = true;
}

Sauvegarde SauveFich(NoteWindow& editor, bool ask) {
  Session& session = editor.Values();
  if (!session.dirty) return Sauvegarde::Inutile;
  if (ask && editor.AskOver({.text = u"Voulez-vous enregistrer les modifs en cours",
                             .buttons = MessageBox::Buttons::YesNo,
                             .icon = MessageBox::Icon::Question}) != MessageBox::Answer::Yes)
    return Sauvegarde::Refusee;
  std::vector<std::u16string> kept;
  const bool written = EcrireDocument(editor, kept);
  if (written) {
    SupprimerJumeaux(editor);
    session.dirty = false;
  }
  AnnoncerSecours(editor, Cause::FichierModifie, kept);
  return written ? Sauvegarde::Faite : Sauvegarde::Impossible;
}

bool EcrireDocument(NoteWindow& editor, std::vector<std::u16string>& kept) {
  Session& session = editor.Values();
  const auto turn = LockFolder(editor);
  const bool written = IgnoringErrors([&] {
    if (auto copy = KeepOtherState(editor)) kept.push_back(std::move(*copy));
    const std::string bytes =
        editor.Document().SaveFile(session.documentPath, TypeDe(session.format));
    editor.OnDisk() = StateOf(session.documentPath, bytes);
  });
  editor.ShowStatus(2, written ? u"" : u"Enregistrement impossible");
  return written;
}

bool EcrireEtAnnoncer(NoteWindow& editor) {
  std::vector<std::u16string> kept;
  const bool written = EcrireDocument(editor, kept);
  AnnoncerSecours(editor, Cause::FichierModifie, kept);
  return written;
}

void SupprimerFichier(NoteWindow& editor, std::vector<std::u16string>& kept) {
  const auto turn = LockFolder(editor);
  IgnoringErrors([&] {
    if (auto copy = KeepOtherState(editor)) kept.push_back(std::move(*copy));
    editor.Services().FileSystem().Delete(editor.Values().documentPath, true);
  });
}

void SupprimerJumeaux(NoteWindow& editor) {
  const Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  const auto texts = EnTouteCasse(files, ChmExts(session.documentPath, u"txt"));
  const auto rtfs = EnTouteCasse(files, ChmExts(session.documentPath, u"rtf"));
  if (texts.empty() || rtfs.empty()) return;
  for (const std::u16string& twin : session.format == u"txt" ? rtfs : texts)
    SupprimerAutreFichier(files, twin, session.documentPath);
}

void Maj_StrOrChm(NoteWindow& editor) {
  Session& session = editor.Values();
  if (session.fileMode || (session.format != u"txt" && session.format != u"rtf")) return;
  PutNote(session, ContenuNote(editor));
}

void EnregistrerNote(NoteWindow& editor) {
  SauveFich(editor, false);
  Session& session = editor.Values();
  PutNote(session, session.fileMode ? session.documentPath : ContenuNote(editor));
}

bool SupprimerDocument(NoteWindow& editor) {
  Session& session = editor.Values();
  const std::u16string named = session.documentPath;
  editor.SuspendreDessus();
  const bool confirmed =
      editor.Ask(
          {.text = u"Voulez-vous vraiment supprimer le document\r\nen cours d'édition:\r\n" + named,
           .title = u"Attention",
           .buttons = MessageBox::Buttons::YesNo,
           .icon = MessageBox::Icon::Question}) == MessageBox::Answer::Yes;
  // While the question was open, another event may have closed the editor or changed the path.
  if (!confirmed || session.closed || session.documentPath != named) {
    editor.RetablirDessus();
    return false;
  }
  Files& files = editor.Services().FileSystem();
  IgnoringErrors([&] { files.Delete(named, true); });
  if (files.Exists(named)) {
    editor.RetablirDessus();
    throw RuntimeError(ErrorNumber::PermissionDenied);
  }
  session.deleted = true;
  PutNote(session, {});
  return true;
}

}  // namespace lumenote
