#include "editor/Conversion.h"

#include <optional>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "control/Session.h"
#include "editor/ContextMenu.h"
#include "editor/DocumentStorage.h"
#include "editor/Secours.h"
#include "forms/Platform.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

/// Puts back what stood at a path before, if the conversion fails.
class FileKeeper {
 public:
  FileKeeper(Files& files, std::u16string path) : files_(files), path_(std::move(path)) {
    if (files_.Exists(path_)) bytes_ = files_.ReadAll(path_);
  }
  FileKeeper(const FileKeeper&) = delete;
  FileKeeper& operator=(const FileKeeper&) = delete;

  void PutBack() {
    IgnoringErrors([&] {
      if (bytes_)
        files_.Write(path_, *bytes_);
      else
        files_.Delete(path_, true);
    });
  }

 private:
  Files& files_;
  std::u16string path_;
  std::optional<std::string> bytes_;
};

void Convert(EditorWindow& editor, std::u16string_view format, FileType type,
             std::u16string_view label) {
  Session& session = editor.Values();
  Files& files = editor.Services().FileSystem();
  const std::u16string old = session.documentPath;
  const std::u16string path = ChmExts(old, format);
  FileKeeper before(files, path);
  const bool converted = IgnoringErrors([&] {
    editor.Document().SaveFile(path, type);
    editor.Document().LoadFile(path, type);
  });
  if (!converted) return before.PutBack();
  session.format = format;
  session.dirty = false;
  editor.ShowFormat(label);
  std::vector<std::u16string> kept;
  if (!files.SameFile(old, path)) SupprimerFichier(editor, kept);
  session.documentPath = path;
  NoterFichier(editor);
  editor.ShowStatus(1, EspDvtDer(path));
  AnnoncerSecours(editor, Cause::FichierModifie, kept);
}

}  // namespace

void UpdateConvertir(ContextMenu& menu, const Session& session) {
  const bool rtf = session.format == u"rtf";
  menu.mnuPopRichTextText.Enabled(rtf);
  menu.mnuPopTextRichText.Enabled(!rtf);
}

void ConvertirEnRtf(EditorWindow& editor) {
  Convert(editor, u"rtf", FileType::Rtf, u"Format RichText (rtf)");
}

void ConvertirEnTexte(EditorWindow& editor) {
  Convert(editor, u"txt", FileType::Text, u"Format Text (txt)");
}

}  // namespace lumenote
