#include "surface/editing/Transfer.h"

#include <utility>

#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "document/tables/CopiedRows.h"
#include "html/read/Reader.h"
#include "html/source/HtmlBytes.h"
#include "html/write/Writer.h"
#include "rtf/read/Reader.h"
#include "rtf/write/Writer.h"
#include "surface/editing/PastedPictures.h"
#include "surface/editing/SourceBytes.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

namespace {

constexpr std::uint16_t kFrench = 1036;
constexpr std::u16string_view kDefaultFont = u"Arial";

CharFormat BaseFormat(FormatTables& formats) {
  CharFormat format;
  format.font = formats.fonts.Intern({.name = std::u16string(kDefaultFont)});
  return format;
}

std::u16string TextOf(const Fragment& fragment) {
  std::u16string text;
  fragment.leaves.ForEachRun(0, fragment.Length(),
                             [&](Position, TextView run, CharId) { run.AppendTo(text); });
  return text;
}

/// The head of a note that has no source.
HeadId OwnHead(const CharFormat& base, FormatTables& formats) {
  return formats.heads.Intern({.fonts = {{.number = 0, .font = base.font}}, .defaultFont = 0});
}

}  // namespace

Transfer::Transfer(EditingCore& core, TextEditing& text, Clipboard& clipboard, Files& files)
    : core_(core),
      text_(text),
      clipboard_(clipboard),
      files_(files),
      base_(BaseFormat(core.Formats())),
      unstated_(base_) {
  Text({});
}

void Transfer::Text(std::u16string_view text) {
  FormatTables& formats = core_.Formats();
  const CharId format = formats.characters.Intern(OwnFormat());
  const ParaId paragraph = formats.paragraphs.Intern({});
  Fragment whole = PlainFragment(text, format, paragraph);
  whole.mark = FinalMark{format, paragraph, OwnHead(base_, formats)};
  LoadWhole(whole, base_.font);
}

CharFormat Transfer::OwnFormat() const {
  CharFormat own = base_;
  own.language = kFrench;
  return own;
}

void Transfer::LoadWhole(const Fragment& whole, FontId plainFont) {
  core_.Load(whole);
  unstated_.font = plainFont;
}

void Transfer::LoadRtf(std::string_view bytes) {
  const RtfNote note = ReadRtfNote(bytes, core_.Formats(), base_);
  LoadWhole(note.content, note.plainFont);
}

void Transfer::LoadHtml(std::string_view bytes) {
  FormatTables& formats = core_.Formats();
  Fragment whole = ReadHtml(DecodeHtml(bytes), formats, HtmlTarget::Document, base_);
  whole.mark->head = OwnHead(base_, formats);
  LoadWhole(whole, base_.font);
}

std::u16string Transfer::BaseFontName() const {
  return core_.Content().Formats().fonts[unstated_.font].name;
}

std::u16string Transfer::Rtf() const { return WidenSource(WriteRtf(core_.Content())); }

void Transfer::Rtf(std::u16string_view rtf) {
  const std::string bytes = NarrowSource(rtf);
  if (LooksLikeRtf(bytes))
    LoadRtf(bytes);
  else
    Text(rtf);
}

std::u16string Transfer::SelectedRtf() const {
  const Selection selection = core_.Selected();
  return WidenSource(WriteRtf(core_.Content(), selection.start, selection.end));
}

void Transfer::SelectedRtf(std::u16string_view rtf) {
  const std::string bytes = NarrowSource(rtf);
  if (!LooksLikeRtf(bytes)) return text_.ReplaceSelection(UndoKind::Unknown, rtf);
  const Fragment fragment =
      ReadRtf(bytes, core_.Formats(), RtfTarget::Selection, unstated_, core_.Content().Mark());
  if (fragment.Length() > 0)
    text_.ReplaceWhole(fragment);
  else
    text_.DeleteSelection(UndoKind::Unknown);
}

std::string Transfer::Load(std::u16string_view path, FileType type,
                           std::optional<TextEncoding> encoding) {
  core_.RefuseWhileNotifying();
  std::string bytes = files_.ReadAll(path);
  type == FileType::Text ? LoadText(bytes, encoding) : LoadSource(bytes);
  return bytes;
}

void Transfer::LoadSource(std::string_view bytes) {
  if (!LooksLikeRtf(bytes))
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Le fichier n'est pas au format RTF");
  LoadRtf(bytes);
  encoding_ = TextEncoding::Windows1252;
  original_.clear();
}

// The original bytes are kept only when the text does not determine them: all paragraph breaks of a
// document are CR LF, and invalid bytes have no character. A lone CR or LF shows as a longer text.
void Transfer::LoadText(const std::string& bytes, std::optional<TextEncoding> encoding) {
  encoding_ = encoding.value_or(DetectEncoding(bytes));
  const std::u16string text = DecodeText(bytes, encoding_);
  Text(text);
  const bool same =
      static_cast<std::size_t>(core_.Content().Length()) == text.size() &&
      (encoding_ == TextEncoding::Windows1252 || EncodeTextFile(text, encoding_) == bytes);
  original_ = same || encoding ? std::string() : bytes;
}

std::string Transfer::PlainBytes() const {
  const Document& document = core_.Content();
  const std::u16string text = document.Text(0, document.Length());
  if (!original_.empty() && WithCrLf(DecodeText(original_, encoding_)) == text) return original_;
  return EncodeTextFile(text, encoding_);
}

std::string Transfer::Bytes(FileType type) const {
  return type == FileType::Rtf ? WriteRtf(core_.Content()) : PlainBytes();
}

std::string Transfer::Save(std::u16string_view path, FileType type) {
  std::string bytes = Bytes(type);
  files_.Write(path, bytes);
  core_.CloseStep();
  return bytes;
}

void Transfer::Copy() {
  if (!core_.HasSelection()) return;
  const Selection selection = core_.Selected();
  const auto [document, range] = WithRowEnd(core_.Content(), selection);
  clipboard_.Set({document.Text(selection.start, selection.end),
                  WriteRtf(document, range.start, range.end),
                  WriteHtml(document, range.start, range.end), LonePicture(document, selection)});
}

void Transfer::Cut() {
  core_.RefuseWhileNotifying();
  Copy();
  text_.DeleteSelection(UndoKind::Cut);
}

void Transfer::Paste() {
  const Fragment fragment = FragmentOf(clipboard_.Get());
  if (fragment.Length() > 0) text_.ReplaceSelection(UndoKind::Paste, fragment);
}

// Some programs offer no text beside their RTF or HTML. What is kept has no place in plain text.
void Transfer::PasteText() {
  ClipboardContent content = clipboard_.Get();
  content.images.clear();
  content.imagesTooLarge = false;
  std::u16string text = content.text ? *content.text : TextOf(FragmentOf(content));
  if (text.empty()) text = content.imageNames;
  std::erase(text, kObjectCharacter);
  if (!text.empty()) text_.ReplaceSelection(UndoKind::Paste, text_.Plain(text));
}

void Transfer::Drop(const ClipboardContent& content, Position target) {
  core_.Select(target, target);
  text_.Drop(FragmentOf(content), core_.Caret());
}

/// The width of the text on screen, in twips; 0 if nothing shows it.
double Transfer::TextWidth() {
  const SurfaceView* const view = core_.View();
  return view ? view->TextWidth() : 0;
}

// RTF before HTML before text before images, unless the others only name an image; plain text looks
// like what would be typed.
Fragment Transfer::FragmentOf(const ClipboardContent& content) {
  if (content.imagesTooLarge)
    throw RuntimeError(ErrorNumber::OutOfMemory, u"Images trop volumineuses (plus de 64 Mo)");
  Fragment fragment;
  if (content.rtf && LooksLikeRtf(*content.rtf))
    fragment = ReadRtf(*content.rtf, core_.Formats(), RtfTarget::Selection, unstated_,
                       core_.Content().Mark());
  if (!content.images.empty() && WantsImages(content))
    fragment =
        PictureFragment(content.images, core_.InsertionFormat(), TextWidth(), core_.Formats());
  if (fragment.Length() == 0 && content.html)
    fragment = ReadHtml(FromUtf8(*content.html), core_.Formats(), HtmlTarget::Selection, unstated_);
  if (fragment.Length() == 0 && content.text) fragment = text_.Plain(*content.text);
  return fragment;
}

}  // namespace lumenote
