// The rich-text surface: every operation that windows and procedures may ask of a text box.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/Position.h"
#include "base/TextEncoding.h"
#include "document/formats/LineRule.h"
#include "document/undo/UndoKind.h"

namespace lumenote {

enum class FileType { Rtf = 0, Text = 1 };

/// Options of `Find`; combine them by addition.
enum FindOption : int { kFindWholeWord = 2, kFindMatchCase = 4 };

/// The paragraph-format record: only the members selected by `mask` are read or written.
struct ParagraphRecord {
  enum Member : unsigned { kLineSpacing = 0x100, kSpaceBefore = 0x40, kSpaceAfter = 0x80 };
  unsigned mask = 0;
  LineRule lineSpacingRule = LineRule::Single;
  std::int32_t lineSpacing = 0;  // twips; twentieths of a line under the rule Multiple
  std::int32_t spaceBefore = 0;  // twips
  std::int32_t spaceAfter = 0;   // twips
};

/// The text-mode flags: rich text, multi-level undo, multi-code-page text.
inline constexpr int kTextModeRichMultilevel = 42;

/// Writes a snapshot of a surface's content in steps; later edits do not show in it. Used on the
/// surface's thread, but may outlive the surface.
class SnapshotWriter {
 public:
  virtual ~SnapshotWriter() = default;
  /// Writes on for a fraction of a millisecond; false once all is written.
  virtual bool Step() = 0;
};

/// Text, formats, selection, undo and clipboard of one text box. Accessors come in pairs: without
/// an argument they read, with one they write. A character or paragraph attribute that is mixed in
/// the selection reads as an empty optional; with an empty selection it is that of the text typed
/// next. A position or length beyond the end is clipped; a negative one raises InvalidPropertyValue
/// (380) and leaves the selection alone. An assignment that changes nothing makes no undo step and
/// no notification, but replacing the whole content always notifies. Edits by the program have undo
/// kind Unknown. Editing inside a notification raises InvalidArgument (5).
class RichTextSurface {
 public:
  virtual ~RichTextSurface() = default;

  /// The whole content, paragraphs separated by CR LF. Writing replaces everything, formats
  /// included, and clears the undo history.
  virtual std::u16string Text() const = 0;
  virtual void Text(std::u16string_view text) = 0;
  /// The length of the whole content, without copying it.
  virtual Position TextLength() const = 0;
  /// The whole content as RTF source, one byte per unit. Writing a text that is not RTF loads it as
  /// plain text.
  virtual std::u16string TextRTF() const = 0;
  virtual void TextRTF(std::u16string_view rtf) = 0;

  virtual Position SelStart() const = 0;
  virtual void SelStart(Position start) = 0;  // leaves an empty selection there
  virtual Position SelLength() const = 0;
  virtual void SelLength(Position length) = 0;
  virtual std::u16string SelText() const = 0;
  /// Inserted text takes the format of the first character replaced; the caret ends after it, with
  /// nothing selected. A lone CR or LF becomes CR LF.
  virtual void SelText(std::u16string_view text) = 0;
  virtual std::u16string SelRTF() const = 0;
  virtual void SelRTF(std::u16string_view rtf) = 0;

  /// A selection up to the end of the document includes the final mark, so that text typed there
  /// later looks the same.
  virtual std::optional<bool> SelBold() const = 0;
  virtual void SelBold(bool on) = 0;
  virtual std::optional<bool> SelItalic() const = 0;
  virtual void SelItalic(bool on) = 0;
  virtual std::optional<bool> SelUnderline() const = 0;
  virtual void SelUnderline(bool on) = 0;
  virtual std::optional<bool> SelStrikeThru() const = 0;
  virtual void SelStrikeThru(bool on) = 0;
  virtual std::optional<int> SelCharOffset() const = 0;  // twips, positive above the line
  virtual void SelCharOffset(int twips) = 0;             // 16 bits, else Overflow (6)
  /// The document's default font, whatever fonts its text uses.
  virtual std::u16string BaseFontName() const = 0;
  virtual std::optional<std::u16string> SelFontName() const = 0;
  virtual void SelFontName(std::u16string_view name) = 0;  // an empty name changes nothing
  virtual std::optional<float> SelFontSize() const = 0;    // points, halves kept
  virtual void SelFontSize(float points) = 0;  // 1 to 1638, else InvalidPropertyValue (380)
  virtual std::optional<std::int32_t> SelColor() const = 0;  // 0xBBGGRR; automatic reads as black
  virtual void SelColor(std::int32_t colour) = 0;  // other bits raise InvalidPropertyValue (380)

  /// Paragraph attributes cover every paragraph that the selection touches; a selection that ends
  /// just before a paragraph's first character does not touch that paragraph.
  virtual std::optional<bool> SelBullet() const = 0;
  virtual void SelBullet(bool on) = 0;
  virtual std::optional<int> SelAlignment() const = 0;  // 0 left (or justified), 1 right, 2 centre
  virtual void SelAlignment(int alignment) = 0;         // others raise InvalidPropertyValue (380)
  virtual std::optional<int> SelIndent() const = 0;     // twips, of the first line
  virtual void SelIndent(int twips) = 0;
  virtual std::optional<int> SelRightIndent() const = 0;  // twips
  virtual void SelRightIndent(int twips) = 0;
  virtual std::optional<int> SelHangingIndent() const = 0;  // twips, following lines from the first
  virtual void SelHangingIndent(int twips) = 0;
  /// The wrap width in twips from the left edge; 0 wraps at the visible width, a negative value
  /// raises InvalidPropertyValue (380). Neither part of the document nor undoable.
  virtual float RightMargin() const = 0;
  virtual void RightMargin(float twips) = 0;

  /// Replaces everything and clears the undo history. `FileType::Rtf` raises InvalidArgument (5)
  /// for a file that is not RTF; a failure leaves the content unchanged. Plain text is read in
  /// `encoding` or, if empty, in the detected encoding (`DetectEncoding`). Returns the bytes read.
  virtual std::string LoadFile(std::u16string_view path, FileType type,
                               std::optional<TextEncoding> encoding = std::nullopt) = 0;
  /// Plain text is written in the form of UTF-8 that it was loaded in, else in page 1252, else as
  /// UTF-8 with a byte order mark (`EncodeTextFile`), with CR LF breaks. Text that is exactly as
  /// loaded is written back byte for byte. Returns the bytes written.
  virtual std::string SaveFile(std::u16string_view path, FileType type) = 0;
  /// What `SaveFile` would write.
  virtual std::string FileBytes(FileType type) const = 0;
  /// Writes the same to `sink` in steps, but plain text as though it had not been loaded from a
  /// file.
  using ContentSink = std::function<void(std::string_view)>;
  virtual std::unique_ptr<SnapshotWriter> WriteSnapshot(FileType type, ContentSink sink) const = 0;

  /// Searches from `start` to the end of the document, selects the match and returns its position.
  /// Returns -1, leaving the selection alone, if there is none or `text` is empty. A negative start
  /// searches from the beginning.
  virtual Position Find(std::u16string_view text, Position start, int options) = 0;
  /// Finds each match from the start of the document, replaces it as `SelText` does and searches on
  /// from where it ended, whatever the replacement's length; one undo step. If there is a match
  /// behind the first `most`, it is selected and counted, too. Returns the count.
  virtual Position ReplaceAll(std::u16string_view text, std::u16string_view replacement,
                              int options, Position most) = 0;
  /// Extends the selection's end (backward: its start) over characters in `set`, or with `negate`
  /// over characters not in it. A set that contains CR or LF contains the paragraph break, which
  /// counts as one character.
  virtual void Span(std::u16string_view set, bool forward, bool negate) = 0;
  /// Moves the caret, selecting nothing, forward to (backward: to just after) the next character in
  /// `set`, or with `negate` the next one not in it; does nothing if there is none.
  virtual void UpTo(std::u16string_view set, bool forward, bool negate) = 0;

  /// Switches multi-level undo (8), off at first; the other flags are always on. Raises
  /// InvalidPropertyValue (380) unless the surface is empty.
  virtual void TextMode(int mode) = 0;
  virtual UndoKind UndoType() const = 0;
  virtual UndoKind RedoType() const = 0;
  virtual bool CanPaste() const = 0;
  virtual bool CanUndo() const = 0;
  virtual bool CanRedo() const = 0;
  virtual void Undo() = 0;
  virtual void Redo() = 0;
  /// Brackets edits that become one undo step of kind Unknown; see `EditGroup`.
  virtual void BeginGroup() = 0;
  virtual void EndGroup() = 0;
  /// Runs a command that makes several edits. If an allocation fails in it, its edits are rolled
  /// back and the failure propagates.
  virtual void Atomically(const std::function<void()>& command) = 0;
  virtual void Cut() = 0;
  virtual void Copy() = 0;
  virtual void Paste() = 0;
  /// The user's "&Suppr.": deletes the selection, undo kind Delete.
  virtual void Clear() = 0;

  /// Lines as laid out on screen, counted from 0.
  virtual std::int32_t LineFromChar(Position position) const = 0;
  /// The same, but `limit` for any line from it on, so that no more is laid out than that takes.
  virtual std::int32_t LineFromChar(Position position, std::int32_t limit) const = 0;
  /// First position of a line; -1 for a line that does not exist.
  virtual Position LineIndex(std::int32_t line) const = 0;
  /// Length of the line that holds `position`, without its break.
  virtual Position LineLength(Position position) const = 0;

  /// Of the selection's first paragraph.
  virtual ParagraphRecord GetParaFormat(unsigned mask) const = 0;
  /// On every selected paragraph.
  virtual void SetParaFormat(const ParagraphRecord& record) = 0;

  /// Types what the user sees being composed with an input method, as the user's act.
  virtual void CompleteComposition() = 0;

  /// Called after the content (text or formats) has changed, whatever changed it.
  virtual void OnChange(std::function<void()> handler) = 0;
};

/// Groups all edits made during its lifetime into one undo step; groups nest.
class EditGroup {
 public:
  explicit EditGroup(RichTextSurface& surface) : surface_(surface) { surface_.BeginGroup(); }
  ~EditGroup() { surface_.EndGroup(); }
  EditGroup(const EditGroup&) = delete;
  EditGroup& operator=(const EditGroup&) = delete;

 private:
  RichTextSurface& surface_;
};

/// Runs a command as one undo step, rolled back if an allocation fails in it.
inline void AsOneStep(RichTextSurface& surface, const std::function<void()>& command) {
  const EditGroup group(surface);
  surface.Atomically(command);
}

}  // namespace lumenote
