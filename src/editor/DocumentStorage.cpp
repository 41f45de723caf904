#include "editor/DocumentStorage.h"

#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/Windows1252.h"
#include "control/Session.h"
#include "forms/Platform.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"

namespace lumenote {

namespace {

constexpr std::string_view kEmptyRtf =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1036{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
    "\\viewkind4\\uc1\\pard\\fs20\r\n"
    "\\par }\r\n";

/// What the host is to find in the note after a save: nothing new once it has written another one.
void PutNote(Session& session, std::u16string value) {
  if (!session.noteReplaced) session.note = std::move(value);
}

/// Of the twins x.txt and x.rtf only the one just saved stays.
void DeleteTwin(Files& files, std::u16string_view shownPath, std::u16string_view format,
                std::u16string_view note) {
  const std::u16string text = ChmExts(shownPath, u"txt");
  const std::u16string rtf = ChmExts(text, u"rtf");
  if (!files.Exists(text) || !files.Exists(rtf)) return;
  SupprimerAutreFichier(files, format == u"txt" ? rtf : text, note);
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

void EcritNoteTemp(Files& files, std::u16string_view path, std::u16string_view note) {
  files.Write(path, Encode1252(note));
}

void CreFVideRtf(Files& files, std::u16string_view path) { files.Write(path, kEmptyRtf); }

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

std::u16string ContenuNote(EditorWindow& editor) {
  return editor.Values().format == u"txt" ? editor.Document().Text() : editor.Document().TextRTF();
}

void SupprimerAutreFichier(Files& files, std::u16string_view path, std::u16string_view note) {
  if (files.SameFile(path, note)) return;
  IgnoringErrors([&] { files.Delete(path, false); });
}

bool LoadFilAndIni(EditorWindow& editor) {
  Session& session = editor.Values();
  editor.ShowStatus(1, EspDvtDer(session.documentPath));
  session.format = FormatDe(session.documentPath);
  const FileType type = TypeDe(session.format);
  editor.ShowFormat(type == FileType::Text ? u"Format Text (txt)" : u"Format RichText (rtf)");
  const bool loaded =
      IgnoringErrors([&] { editor.Document().LoadFile(session.documentPath, type); });
  session.dirty = false;
  if (!loaded)
    editor.AskOver({.text = u"Impossible de Charger le fichier\r\n" + session.documentPath,
                    .icon = MessageBox::Icon::Critical});
  return loaded;
}

Sauvegarde SauveFich(EditorWindow& editor, bool ask) {
  Session& session = editor.Values();
  if (!session.dirty) return Sauvegarde::Inutile;
  if (ask && editor.AskOver({.text = u"Voulez-vous enregistrer les modifs en cours",
                             .buttons = MessageBox::Buttons::YesNo,
                             .icon = MessageBox::Icon::Question}) != MessageBox::Answer::Yes)
    return Sauvegarde::Refusee;
  if (!IgnoringErrors(
          [&] { editor.Document().SaveFile(session.documentPath, TypeDe(session.format)); })) {
    editor.ShowStatus(2, u"Enregistrement impossible");
    return Sauvegarde::Impossible;
  }
  editor.ShowStatus(2, u"");
  DeleteTwin(editor.Services().FileSystem(), TrimBlanks(editor.Status(1)), session.format,
             session.documentPath);
  session.dirty = false;
  return Sauvegarde::Faite;
}

void Maj_StrOrChm(EditorWindow& editor) {
  Session& session = editor.Values();
  if (session.fileMode || (session.format != u"txt" && session.format != u"rtf")) return;
  PutNote(session, ContenuNote(editor));
}

void EnregistrerNote(EditorWindow& editor) {
  SauveFich(editor, false);
  Session& session = editor.Values();
  PutNote(session, session.fileMode ? session.documentPath : ContenuNote(editor));
}

bool SupprimerDocument(EditorWindow& editor) {
  Session& session = editor.Values();
  editor.SuspendreDessus();
  const std::u16string& named = session.noteReplaced ? session.documentPath : session.note;
  const bool confirmed =
      editor.Ask(
          {.text = u"Voulez-vous vraiment supprimer le document\r\nen cours d'édition:\r\n" + named,
           .title = u"Attention",
           .buttons = MessageBox::Buttons::YesNo,
           .icon = MessageBox::Icon::Question}) == MessageBox::Answer::Yes;
  if (!confirmed) {
    editor.RetablirDessus();
    return false;
  }
  IgnoringErrors([&] { editor.Services().FileSystem().Delete(session.documentPath, true); });
  session.deleted = true;
  PutNote(session, {});
  return true;
}

}  // namespace lumenote
