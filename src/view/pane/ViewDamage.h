// What of a pane has to be painted anew, and what of it has only moved.
#pragma once
#include <cstdint>
#include <optional>
#include <vector>

#include "view/pane/TextPane.h"

namespace lumenote {

/// What is shown besides the document itself.
struct ViewMarks {
  Selection selection;
  std::optional<PixelRect> caret{};  // not at all while it blinks
  std::optional<PixelRect> dropCaret{};
};

/// Pixels already shown, as wide as the pane, that move up or down: first of all, before anything
/// is painted. A backend that cannot move them paints where they would come to lie.
struct PixelShift {
  double top = 0;  // where they are; whole pixels inside the pane, as is where they come to lie
  double bottom = 0;
  double by = 0;  // downwards

  PixelRect Target(double width) const { return {0, top + by, width, bottom + by}; }
};

/// Areas have edges on whole pixels and may overlap; each is painted wholly, ground included.
struct Damage {
  std::optional<PixelShift> shift;
  std::vector<PixelRect> areas;

  /// Joins what lies just below the area before.
  void Add(const PixelRect& area);
};

/// Remembers what was painted last and finds the difference to what should be there now, so that a
/// character typed costs the lines it changed, and a scroll the lines that come into view.
class ViewDamage {
 public:
  explicit ViewDamage(TextPane& pane) : pane_(pane) {}

  /// What to do so that the pane shows its present content and `marks`; taken as done.
  Damage Take(const ViewMarks& marks);
  /// Nothing on screen can be trusted any more.
  void Everything() { shown_.clear(); }

 private:
  struct Seen {
    std::uint64_t look = 0;
    double top = 0;
    double bottom = 0;
    double baseline = 0;
    Selection selected;  // units of the line
    bool operator==(const Seen&) const = default;
    Seen MovedBy(double y) const { return {look, top + y, bottom + y, baseline + y, selected}; }
  };
  using Lines = std::vector<Seen>;

  Lines LinesOf(const std::vector<ShownPiece>& shown, Selection selection) const;
  std::optional<PixelShift> FindShift(const Lines& now) const;
  PixelShift LongestRun(const Lines& now, std::ptrdiff_t ahead) const;
  void Shift(Damage& damage);
  void AddLines(Damage& damage, const Lines& now) const;
  void AddCaret(Damage& damage, const std::optional<PixelRect>& before,
                const std::optional<PixelRect>& now) const;
  PixelRect Strip(double top, double bottom) const {
    return {0, std::max(top, 0.0), size_.width, std::min(bottom, size_.height)};
  }

  TextPane& pane_;
  Lines shown_;  // from top to bottom
  double scrolledRight_ = 0;
  PixelSize size_;
  ViewMarks marks_;
};

}  // namespace lumenote
