// A view on a window that paints into memory, and a note laid out wholly to compare with.
#pragma once
#include <memory>
#include <vector>

#include "backends/headless/FixedLayouter.h"
#include "surface/Fakes.h"
#include "surface/UserBench.h"
#include "view/Edits.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// What has been painted: a number for each pixel, 0 for the ground.
class Screen {
 public:
  explicit Screen(PixelSize size)
      : width_(static_cast<int>(size.width)),
        height_(static_cast<int>(size.height)),
        pixels_(static_cast<std::size_t>(width_ * height_)) {}

  bool operator==(const Screen&) const = default;
  bool Fits(PixelSize size) const { return width_ == size.width && height_ == size.height; }

  void Move(const PixelShift& shift);
  /// Paints an area of the pane.
  void Paint(TextPane& pane, const ViewMarks& marks, const PixelRect& area);

 private:
  void Fill(const PixelRect& rect, const PixelRect& area, std::size_t value, double origin = 0);
  void PaintPiece(TextPane& pane, const ViewMarks& marks, const ShownPiece& item,
                  const PixelRect& area);

  int width_;
  int height_;
  std::vector<std::uint32_t> pixels_;
};

/// Characters of ten points are ten pixels wide, their lines 24 high.
struct Window : ViewHost {
  explicit Window(PixelSize size);

  void Type(std::u16string_view marked);
  std::u16string Shown() const { return Marked(surface.Text(), surface.Anchor(), surface.Caret()); }
  /// How the screen would be if it were painted anew.
  Screen Fresh();

  void Act(const std::function<void()>& act) override { act(); }
  bool IsLocked() const override { return locked; }
  bool TabLeaves() const override { return false; }
  PointerManners Pointer() const override { return {}; }
  void SettleSoon() override {}
  void IdleSoon() override { ++idles; }
  void ShowScrolling() override { pane.Scroll().Read(); }
  void ShowDamage(const Damage& damage) override;
  void Changed(const DocumentChange&) override { ++changes; }
  void SelectionMoved() override { ++moves; }
  void DropComposition() override { dropComposition(); }
  void ShowPointer(PointerShape shown) override { shape = shown; }
  void ScrollTimer(bool on) override { timer = on; }
  void Drag() override { ++drags; }
  void OpenLink(std::u16string_view address) override { opened = address; }
  void OpenMenu(PixelPoint at) override { menu = at; }

  bool locked = false;
  PointerShape shape = PointerShape::Text;
  std::u16string opened;
  bool timer = false;
  int changes = 0;
  int moves = 0;
  int idles = 0;
  int drags = 0;
  PixelPoint menu;
  std::function<void()> dropComposition = [] {};
  double painted = 0;  // pixels of damage
  int shifts = 0;

  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedLayouter layouter;
  PieceBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
  Screen screen;
  NoteView view{surface, layouter, *this};
  TextPane& pane = view.Pane();
};

/// Every paragraph laid out at once, one below the other.
class WholeLayout {
 public:
  WholeLayout(const Document& document, TextLayouter& layouter);

  const std::vector<Line>& Lines() const { return lines_; }
  Position LongestParagraph() const { return longest_; }
  /// Distance of a position's line from the top of the document, and of the position from the left.
  PixelPoint PlaceOf(Position position) const;
  /// The caret position nearest to a point.
  Position At(PixelPoint point) const;

 private:
  struct Placed {
    std::unique_ptr<Piece> piece;
    double y;
  };
  std::vector<Placed> pieces_;
  std::vector<Line> lines_;
  double height_ = 0;
  Position longest_ = 0;
};

}  // namespace lumenote
