#include "editor/Conversion.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "editor/ContextMenu.h"
#include "editor/storage/DocumentStorage.h"
#include "editor/storage/FileState.h"
#include "editor/storage/Secours.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "session/Session.h"

namespace lumenote {
namespace {

/// Writes the document to `path`, reloads it from there and returns the file's state. On failure
/// restores the earlier file and raises.
FileState WriteAndReload(NoteWindow& editor, std::u16string_view path, FileType type) {
  Files& files = editor.Services().FileSystem();
  std::optional<std::string> before;
  if (files.Exists(path)) before = files.ReadAll(path);
  try {
    FileState state = StateOf(path, editor.Document().SaveFile(path, type));
    editor.Document().LoadFile(path, type);  // the last step that can fail
    return state;
  } catch (...) {
    IgnoringErrors([&] { before ? files.Write(path, *before) : files.Delete(path, true); });
    throw;
  }
}

/// The same, but returns empty on failure; only a lack of memory is raised.
std::optional<FileState> TryConversion(NoteWindow& editor, std::u16string_view path,
                                       FileType type) {
  try {
    return WriteAndReload(editor, path, type);
  } catch (const RuntimeError& error) {
    if (error.Number() == static_cast<int>(ErrorNumber::OutOfMemory)) throw;
    return std::nullopt;
  }
}

/// Its destructor makes the new file the document's, even if the old one cannot be deleted.
struct Renaming {
  ~Renaming() {
    editor.Values().documentPath.swap(path);
    std::swap(editor.OnDisk(), state);
  }
  NoteWindow& editor;
  std::u16string& path;
  FileState& state;
};

void Convert(NoteWindow& editor, std::u16string_view format, FileType type,
             std::u16string_view label) {
  Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  const std::u16string old = session.documentPath;
  std::u16string path = ChmExts(old, format);
  const std::u16string shown = EspDvtDer(path);
  std::optional<FileState> state = TryConversion(editor, path, type);
  if (!state) return;
  std::vector<std::u16string> kept;
  {
    const Renaming renaming{editor, path, *state};
    session.format = format;
    if (!files.SameFile(old, path)) SupprimerFichier(editor, kept);
  }
  session.dirty = false;
  editor.ShowFormat(label);
  editor.ShowStatus(1, shown);
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
