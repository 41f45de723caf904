// Content that comes and goes as a whole or through the clipboard: texts, RTF, files.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clipboard.h"
#include "platform/Files.h"
#include "platform/RichTextSurface.h"
#include "surface/editing/EditingCore.h"
#include "surface/editing/TextEditing.h"

namespace lumenote {

/// Turns foreign content into fragments and back. Behaviour and errors: see `RichTextSurface`.
class Transfer {
 public:
  /// All four outlive this object. The document takes the base format.
  Transfer(EditingCore& core, TextEditing& text, Clipboard& clipboard, Files& files);

  void Text(std::u16string_view text);
  std::u16string Rtf() const;
  void Rtf(std::u16string_view rtf);
  std::u16string SelectedRtf() const;
  void SelectedRtf(std::u16string_view rtf);

  /// RTF as it stands in a file.
  void LoadSource(std::string_view bytes);
  /// The same for HTML.
  void LoadHtml(std::string_view bytes);
  std::string Load(std::u16string_view path, FileType type, std::optional<TextEncoding> encoding);
  std::string Save(std::u16string_view path, FileType type);
  /// What `Save` writes.
  std::string Bytes(FileType type) const;

  bool CanPaste() const { return clipboard_.HasContent(); }
  void Copy();
  void Cut();
  void Paste();
  /// Pastes what the clipboard holds in the insertion format.
  void PasteText();
  void Drop(const ClipboardContent& content, Position target);

  /// The font that the content names as its default.
  std::u16string BaseFontName() const;

 private:
  void LoadRtf(std::string_view bytes);
  CharFormat OwnFormat() const;
  /// `plainFont` is the font of text that states none.
  void LoadWhole(const Fragment& whole, FontId plainFont);
  void LoadText(const std::string& bytes, std::optional<TextEncoding> encoding);
  std::string PlainBytes() const;
  double TextWidth();
  Fragment FragmentOf(const ClipboardContent& content);

  EditingCore& core_;
  TextEditing& text_;
  Clipboard& clipboard_;
  Files& files_;
  const CharFormat base_;  // of text that nobody gave a format
  CharFormat unstated_;    // of text whose source states no format, in the present note
  TextEncoding encoding_ = TextEncoding::Windows1252;  // of the file loaded last
  /// That file, where writing its text anew would give other bytes; else empty.
  std::string original_;
};

}  // namespace lumenote
