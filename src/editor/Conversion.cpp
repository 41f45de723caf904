#include "editor/Conversion.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "editor/ContextMenu.h"
#include "editor/DocumentStorage.h"
#include "editor/FileState.h"
#include "editor/Secours.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "session/Session.h"

namespace lumenote {
namespace {

/// Writes the document to `path` and loads it from there; the file as it is then. Where the load
/// fails, what stood there before is put back, and there is none.
std::optional<FileState> Exchange(NoteWindow& editor, std::u16string_view path, FileType type) {
  Files& files = editor.Services().FileSystem();
  std::optional<std::string> before;
  std::optional<FileState> state;
  const bool written = IgnoringErrors([&] {
    if (files.Exists(path)) before = files.ReadAll(path);
    editor.Document().SaveFile(path, type);
  });
  if (!written) return state;
  IgnoringErrors([&] { state = StateOf(path, editor.Document().LoadFile(path, type)); });
  if (!state)
    IgnoringErrors([&] { before ? files.Write(path, *before) : files.Delete(path, true); });
  return state;
}

void Convert(NoteWindow& editor, std::u16string_view format, FileType type,
             std::u16string_view label) {
  Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  const std::u16string old = session.documentPath;
  const std::u16string path = ChmExts(old, format);
  std::optional<FileState> state = Exchange(editor, path, type);
  if (!state) return;
  session.format = format;
  session.dirty = false;
  editor.ShowFormat(label);
  std::vector<std::u16string> kept;
  if (!files.SameFile(old, path)) SupprimerFichier(editor, kept);
  session.documentPath = path;
  editor.OnDisk() = std::move(*state);
  editor.ShowStatus(1, EspDvtDer(path));
  AnnoncerSecours(editor, Cause::FichierModifie, kept);
}

}  // namespace

void UpdateConvertir(ContextMenu& menu, const Session& session) {
  const bool rtf = session.format == u"rtf";
  menu.mnuPopRichTextText.Enabled(rtf);
  menu.mnuPopTextRichText.Enabled(!rtf);
}

void ConvertirEnRtf(NoteWindow& editor) {
  Convert(editor, u"rtf", FileType::Rtf, u"Format RichText (rtf)");
}

void ConvertirEnTexte(NoteWindow& editor) {
  Convert(editor, u"txt", FileType::Text, u"Format Text (txt)");
}

}  // namespace lumenote
