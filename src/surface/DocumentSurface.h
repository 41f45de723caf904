// The rich-text surface over our own document.
#pragma once
#include "base/RuntimeError.h"
#include "platform/RichTextSurface.h"
#include "surface/SnapshotWriters.h"
#include "surface/editing/CharacterFormats.h"
#include "surface/editing/EditingCore.h"
#include "surface/editing/ParagraphFormats.h"
#include "surface/editing/SurfaceView.h"
#include "surface/editing/TextEditing.h"
#include "surface/editing/Transfer.h"
#include "surface/keys/CaretMotion.h"
#include "surface/keys/UserKeys.h"

namespace lumenote {

/// Implements `RichTextSurface`, and adds user input (typing, keys, mouse selection, drops), which
/// gives undo steps their kinds, and what a view needs for painting. Its parts share the document
/// through `EditingCore`; the members here only delegate.
class DocumentSurface final : public RichTextSurface {
 public:
  /// `breaker` lays out lines for line queries and vertical caret movement. All three must outlive
  /// the surface.
  DocumentSurface(Clipboard& clipboard, Files& files, LineBreaker& breaker);

  std::u16string Text() const override;
  void Text(std::u16string_view text) override { transfer_.Text(text); }
  Position TextLength() const override { return core_.Content().Length(); }
  std::u16string TextRTF() const override { return transfer_.Rtf(); }
  void TextRTF(std::u16string_view rtf) override { transfer_.Rtf(rtf); }
  /// RTF as it stands in a file, which takes a third of the memory. Anything else raises
  /// InvalidArgument (5).
  void LoadSource(std::string_view bytes) { transfer_.LoadSource(bytes); }
  void LoadHtml(std::string_view bytes) { transfer_.LoadHtml(bytes); }

  Position SelStart() const override { return core_.Selected().start; }
  void SelStart(Position start) override;
  Position SelLength() const override { return core_.Selected().Length(); }
  void SelLength(Position length) override;
  std::u16string SelText() const override;
  void SelText(std::u16string_view text) override;
  std::u16string SelRTF() const override { return transfer_.SelectedRtf(); }
  void SelRTF(std::u16string_view rtf) override { transfer_.SelectedRtf(rtf); }

  std::optional<bool> SelBold() const override { return characters_.Effect(kBold); }
  void SelBold(bool on) override { characters_.Effect(kBold, on); }
  std::optional<bool> SelItalic() const override { return characters_.Effect(kItalic); }
  void SelItalic(bool on) override { characters_.Effect(kItalic, on); }
  std::optional<bool> SelUnderline() const override { return characters_.Underlined(); }
  void SelUnderline(bool on) override { characters_.Underlined(on); }
  std::optional<bool> SelStrikeThru() const override { return characters_.Effect(kStrike); }
  void SelStrikeThru(bool on) override { characters_.Effect(kStrike, on); }
  std::optional<int> SelCharOffset() const override { return characters_.Offset(); }
  void SelCharOffset(int twips) override { characters_.Offset(twips); }
  std::optional<std::u16string> SelFontName() const override { return characters_.FontName(); }
  void SelFontName(std::u16string_view name) override { characters_.FontName(name); }
  std::optional<float> SelFontSize() const override { return characters_.FontSize(); }
  void SelFontSize(float points) override { characters_.FontSize(points); }
  std::optional<std::int32_t> SelColor() const override { return characters_.TextColour(); }
  void SelColor(std::int32_t colour) override { characters_.TextColour(colour); }

  std::optional<bool> SelBullet() const override { return paragraphs_.Bullet(); }
  void SelBullet(bool on) override { paragraphs_.Bullet(UndoKind::Unknown, on); }
  std::optional<int> SelAlignment() const override { return paragraphs_.AlignmentCode(); }
  void SelAlignment(int alignment) override { paragraphs_.AlignmentCode(alignment); }
  std::optional<int> SelIndent() const override;
  void SelIndent(int twips) override;
  std::optional<int> SelRightIndent() const override;
  void SelRightIndent(int twips) override;
  std::optional<int> SelHangingIndent() const override;
  void SelHangingIndent(int twips) override;
  float RightMargin() const override { return rightMargin_; }
  void RightMargin(float twips) override;

  std::string LoadFile(std::u16string_view path, FileType type,
                       std::optional<TextEncoding> encoding) override {
    std::string bytes;
    TranslateBadAlloc([&] { bytes = transfer_.Load(path, type, encoding); });
    return bytes;
  }
  std::string SaveFile(std::u16string_view path, FileType type) override {
    std::string bytes;
    TranslateBadAlloc([&] { bytes = transfer_.Save(path, type); });
    return bytes;
  }
  std::string FileBytes(FileType type) const override { return transfer_.Bytes(type); }

  std::unique_ptr<SnapshotWriter> WriteSnapshot(FileType type, ContentSink sink) const override {
    return MakeSnapshotWriter(Content(), type, std::move(sink));
  }

  Position Find(std::u16string_view text, Position start, int options) override;
  Position ReplaceAll(std::u16string_view text, std::u16string_view replacement, int options,
                      Position most) override;
  void Span(std::u16string_view set, bool forward, bool negate) override;
  void UpTo(std::u16string_view set, bool forward, bool negate) override;

  void TextMode(int mode) override;
  UndoKind UndoType() const override { return core_.History().UndoType(); }
  UndoKind RedoType() const override { return core_.History().RedoType(); }
  bool CanPaste() const override { return transfer_.CanPaste(); }
  bool CanUndo() const override { return core_.History().CanUndo(); }
  bool CanRedo() const override { return core_.History().CanRedo(); }
  void Undo() override { core_.Undo(); }
  void Redo() override { core_.Redo(); }
  void BeginGroup() override { core_.BeginGroup(); }
  void EndGroup() override { core_.EndGroup(); }
  void Atomically(const std::function<void()>& command) override { core_.Atomically(command); }
  void Cut() override { transfer_.Cut(); }
  void Copy() override { transfer_.Copy(); }
  void Paste() override { transfer_.Paste(); }
  void Clear() override { text_.DeleteSelection(UndoKind::Delete); }

  std::int32_t LineFromChar(Position position) const override;
  std::int32_t LineFromChar(Position position, std::int32_t limit) const override;
  Position LineIndex(std::int32_t line) const override;
  Position LineLength(Position position) const override;

  ParagraphRecord GetParaFormat(unsigned mask) const override { return paragraphs_.Record(mask); }
  void SetParaFormat(const ParagraphRecord& record) override { paragraphs_.Record(record); }

  void CompleteComposition() override {
    if (SurfaceView* view = core_.View()) view->Complete();
  }

  void OnChange(std::function<void()> handler) override { core_.OnChange(std::move(handler)); }

  // For a view.
  const Document& Content() const { return core_.Content(); }
  LineTable& Lines() { return core_.Lines(); }
  Position Caret() const { return core_.Caret(); }
  Position Anchor() const { return core_.Anchor(); }
  Selection Selected() const { return core_.Selected(); }
  /// The format that a character typed now would get.
  CharFormat InsertionFormat() const { return core_.InsertionFormat(); }
  /// The document's default font.
  std::u16string BaseFontName() const override { return transfer_.BaseFontName(); }
  /// Not owned; null for none.
  void View(SurfaceView* view) { core_.View(view); }

  // User input. Types a character or composed text over the selection; CR LF is the Return key.
  void UserType(std::u16string_view text);
  /// Handles a key; false if it means nothing here and the window may use it.
  bool UserKey(const KeyStroke& key);
  /// Sets the selection; `caret` is its moving end.
  void UserSelect(Position anchor, Position caret) { core_.Select(anchor, caret); }
  /// Moves (or copies) the selected text to `target`, undo kind 3, and selects it there.
  void UserDrop(Position target, bool copy) { text_.MoveSelection(target, copy); }
  /// Drops foreign content at `target`, undo kind 3, and selects it.
  void UserDropContent(const ClipboardContent& content, Position target) {
    transfer_.Drop(content, target);
  }

 private:
  void Reveal();

  // Mutable because line look-ups fill the line table, which callers cannot observe.
  mutable EditingCore core_;
  TextEditing text_{core_};
  CharacterFormats characters_{core_};
  ParagraphFormats paragraphs_{core_};
  Transfer transfer_;
  CaretMotion motion_;
  UserKeys keys_{core_, motion_, text_, characters_, paragraphs_, transfer_};
  float rightMargin_ = 0;
};

}  // namespace lumenote
