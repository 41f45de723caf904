#include "editor/storage/SessionLife.h"

#include "base/RuntimeError.h"
#include "editor/storage/DocumentStorage.h"
#include "editor/storage/Secours.h"
#include "editor/storage/StoredGeometry.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "session/Session.h"

namespace lumenote {

namespace {

void PrepareFile(NoteWindow& editor) {
  Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  session.format = FormatDe(session.documentPath);
  if (!files.Exists(session.documentPath))
    IgnoringErrors([&] { CreerSiAbsent(files, session.documentPath); });
  IgnoringErrors([&] { session.readOnly = files.IsReadOnly(session.documentPath); });
}

TextEncoding PrepareString(NoteWindow& editor) {
  Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  const std::u16string leftOver = NomFichTemp(editor.Temp(), u"Str", u"rtf");
  if (files.Exists(leftOver)) IgnoringErrors([&] { files.Delete(leftOver, false); });
  session.documentPath =
      NomFichTemp(editor.Temp(), u"Str", EstNoteRtf(session.note) ? u"rtf" : u"txt");
  return EcritNoteTemp(files, session.documentPath, session.note);
}

enum class Fermeture { Complete, SansGeometrie, Annulee };

Fermeture CloseFile(NoteWindow& editor) {
  Session& session = editor.Values();
  const Sauvegarde outcome = SauveFich(editor, true);
  if (!session.noteReplaced) session.note = session.documentPath;
  if (outcome != Sauvegarde::Impossible)
    SupprimerJumeaux(editor);
  else if (!GarderNote(editor, Cause::EnregistrementImpossible))
    return Fermeture::Annulee;
  return Fermeture::Complete;
}

bool KeepUnreturned(NoteWindow& editor) {
  return !editor.Values().CannotReturn() || GarderNote(editor, Cause::EnregistrementImpossible);
}

Fermeture CloseString(NoteWindow& editor) {
  Session& session = editor.Values();
  const bool asked = session.dirty;
  const bool accepted =
      !asked || editor.AskOver({.text = u"Voulez-vous enregistrer les modifs en cours",
                                .buttons = MessageBox::Buttons::YesNo,
                                .icon = MessageBox::Icon::Question}) == MessageBox::Answer::Yes;
  if (!KeepUnreturned(editor)) return Fermeture::Annulee;
  if (!accepted) return Fermeture::SansGeometrie;
  if (asked && !session.noteReplaced) session.note = ContenuNote(editor);
  return Fermeture::Complete;
}

Fermeture CloseReadOnly(NoteWindow& editor) {
  editor.AskOver({.text = u"Attribut 'Lecture Seule'\r\nAbandon des modifications",
                  .title = u"Attention",
                  .icon = MessageBox::Icon::Exclamation});
  return KeepUnreturned(editor) ? Fermeture::SansGeometrie : Fermeture::Annulee;
}

}  // namespace

void CommencerSession(Session& session) {
  session.deleted = false;
  session.loaded = false;
  session.format.clear();
  session.dirty = false;
  session.onTop = false;
  session.menuBarShown = false;
  session.changes = 0;
}

std::optional<TextEncoding> PreparerDocument(NoteWindow& editor) {
  if (!editor.Values().fileMode) return PrepareString(editor);
  PrepareFile(editor);
  return {};
}

bool OuvrirDocument(NoteWindow& editor) {
  std::optional<TextEncoding> form;
  if (IgnoringErrors([&] { form = PreparerDocument(editor); })) return LoadFilAndIni(editor, form);
  DireEchecChargement(editor);
  return false;
}

bool TerminerEdition(NoteWindow& editor) {
  const Session& session = editor.Values();
  const bool refused = session.readOnly && session.dirty;
  const Fermeture decision = refused            ? CloseReadOnly(editor)
                             : session.fileMode ? CloseFile(editor)
                                                : CloseString(editor);
  if (decision == Fermeture::Complete)
    EcrireGeometrie(editor.Services().UserSettings(), session.settingsKey, editor.WindowBounds());
  return decision != Fermeture::Annulee;
}

bool FermerNote(NoteWindow& editor) {
  const Session& session = editor.Values();
  if (session.deleted || !session.loaded) return true;
  editor.SuspendreDessus();
  if (!TerminerEdition(editor)) return false;
  Maj_StrOrChm(editor);
  return true;
}

void CloreSession(Session& session) {
  session.closed = true;
  if (session.noteReplaced) {
    session.noteReplaced = false;
    PrendreNote(session, session.note, session.noteKind);
  } else if (session.deleted) {
    PrendreNote(session, {}, NoteKind::AsItLooks);
    session.deleted = true;
  }
}

void PrendreNote(Session& session, std::u16string_view noteOrPath, NoteKind kind) {
  const std::u16string value(noteOrPath);
  session.note = value;
  session.noteKind = kind;
  session.deleted = false;
  session.fileMode = kind == NoteKind::Path || (kind == NoteKind::AsItLooks && IsDrivePath(value));
  session.documentPath = session.fileMode ? value : std::u16string();
}

}  // namespace lumenote
