// Any bytes as a note, and the same bytes as acts on it: whatever an edit leaves is saved and
// loaded with its text, and undoing it all gives the note that was loaded.
#include "Target.h"
#include "document/Model.h"
#include "rtf/Reading.h"
#include "rtf/write/Writer.h"
#include "surface/Choices.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

class Editor : UserBench {
 public:
  explicit Editor(std::string_view bytes)
      : acts_({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}) {
    files.files[u"note.rtf"] = bytes;
    surface.OnChange([this] { changed_ = true; });
  }

  void Play() {
    try {
      surface.LoadFile(u"note.rtf", FileType::Rtf, {});
    } catch (const RuntimeError&) {
      return;
    }
    CheckSaved();
    const Model loaded = Held();
    for (int acts = 0; acts < kMaxActs && !acts_.AtEnd(); ++acts) {
      Act();
      CheckSaved();
    }
    while (surface.CanUndo()) surface.Undo();
    Check(Held() == loaded);
  }

 private:
  static constexpr int kMaxActs = 12;

  void Act() {
    static constexpr void (Editor::*kActs[])() = {&Editor::Put,  &Editor::Erase,     &Editor::Erase,
                                                  &Editor::Type, &Editor::Move,      &Editor::Carry,
                                                  &Editor::Bold, &Editor::Paragraph, &Editor::Undo,
                                                  &Editor::Redo, &Editor::PutNote,   &Editor::Font};
    surface.UserSelect(Place(), Place());
    (this->*acts_.Of(kActs))();
  }

  /// Mostly near the beginning or the end, where notes have most to say.
  Position Place() {
    const Position length = surface.TextLength();
    const Position near = acts_.Below(16);
    switch (acts_.Below(4)) {
      case 0:
        return near;
      case 1:
        return length - std::min(near, length);
      case 2:
        return std::min(surface.Caret() + near, length);
      default:
        return acts_.UpTo(length);
    }
  }
  std::u16string_view Text() {
    static constexpr std::u16string_view kPieces[] = {
        u"", u"a", u"\r\n", u"\t", u"\v", u"a\r\nb\t", u"\u2640", u"\x01\x7F", u"\uFFFC", u"{\\}"};
    return acts_.Of(kPieces);
  }

  void Put() { surface.SelText(Text()); }
  void Type() { surface.UserType(Text()); }
  void Erase() { surface.UserKey({.name = acts_.Coin() ? KeyName::BackSpace : KeyName::Delete}); }
  void Move() { surface.UserDrop(Place(), acts_.Coin()); }
  void Carry() {
    surface.Cut();
    surface.UserSelect(Place(), Place());
    surface.Paste();
  }
  void PutNote() {
    static constexpr std::u16string_view kNotes[] = {
        uR"({\rtf1 a{\field{\*\fldinst X}{\fldrslt b}}c\par\ls1{\listtext 1.}d})",
        uR"({\rtf1\trowd\cellx9\intbl a\cell\row})", uR"({\rtf1{\pict 01}\sect\sectd\page a})"};
    surface.SelRTF(acts_.Of(kNotes));
  }
  void Bold() { surface.SelBold(acts_.Coin()); }
  void Font() { surface.SelFontName(acts_.Coin() ? u"Symbol" : u"Arial"); }
  void Paragraph() {
    if (acts_.Coin()) return surface.SelBullet(acts_.Coin());
    surface.SelAlignment(acts_.UpTo(2));
  }
  void Undo() { surface.Undo(); }
  void Redo() { surface.Redo(); }

  void CheckSaved() {
    if (!std::exchange(changed_, false)) return;
    Held();
    const Document saved = Read(WriteRtf(surface.Content()));
    Check(TextOf(saved) == TextOf(surface.Content()));
    Check(LossOf(saved).empty());
  }
  Model Held() const { return ModelOf(surface.Content().Leaves(), surface.Content().Mark()); }

  Choices acts_;
  bool changed_ = false;
};

}  // namespace
}  // namespace lumenote

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  GTEST_FLAG_SET(throw_on_failure, true);  // of what the model expects of every leaf
  return 0;
}

void Try(std::string_view bytes) { lumenote::Editor(bytes).Play(); }
