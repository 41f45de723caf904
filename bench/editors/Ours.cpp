// The surface and the view that the editor's window shows.
#include <limits>

#include "Editor.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"
#include "surface/Fakes.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {
namespace {

class Ours final : public Editor {
 public:
  Ours() { surface_.TextMode(kMultilevelUndo); }

  QAbstractScrollArea& Widget() override { return view_; }
  void Fill(const QString& text) override { surface_.Text(FromQString(text)); }
  void PutCaret(int at) override { surface_.UserSelect(at, at); }
  void Insert(int at, char letter) override {
    surface_.UserSelect(at, at);
    surface_.UserType(std::u16string(1, static_cast<char16_t>(letter)));
  }
  int FindAll(const QString& needle) override {
    const std::u16string sought = FromQString(needle);
    int count = 0;
    AsOneStep(surface_, [&] {
      for (Position from = 0; surface_.Find(sought, from, kFindMatchCase) != -1; ++count)
        from = surface_.SelStart() + surface_.SelLength();
    });
    return count;
  }
  int ReplaceAll(const QString& needle, const QString& replacement) override {
    return surface_.ReplaceAll(FromQString(needle), FromQString(replacement), kFindMatchCase,
                               std::numeric_limits<Position>::max());
  }
  void MakeAllBold() override {
    surface_.SelStart(0);
    surface_.SelLength(surface_.TextLength());
    surface_.SelBold(true);
  }
  void Undo() override { surface_.Undo(); }

 private:
  static constexpr int kMultilevelUndo = 8;

  MemoryClipboard clipboard_;
  MemoryFiles files_;
  QtLayouter layouter_;
  PieceBreaker breaker_{layouter_};
  DocumentSurface surface_{clipboard_, files_, breaker_};
  RichTextView view_{surface_, layouter_, {}, nullptr};
};

}  // namespace

std::unique_ptr<Editor> MakeOurs() { return std::make_unique<Ours>(); }

}  // namespace lumenote
