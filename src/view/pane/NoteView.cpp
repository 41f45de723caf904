#include "view/pane/NoteView.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "base/ScopedFlag.h"
#include "base/Strings.h"
#include "view/pane/RangeBoxes.h"

namespace lumenote {

namespace {
constexpr double kZoomStep = 1.1;
constexpr double kLeastZoom = 0.2;
constexpr double kMaxZoom = 5;
}  // namespace

NoteView::NoteView(DocumentSurface& surface, TextLayouter& layouter, ViewHost& host)
    : pane_(surface, layouter), host_(host) {
  surface.View(this);
}

NoteView::~NoteView() { Detach(); }

void NoteView::Detach() {
  if (std::exchange(attached_, false)) Surface().View(nullptr);
}

void NoteView::Type(std::u16string_view text) {
  if (IsLocked()) return;
  Act([&] { Surface().UserType(WithCrLf(text)); });
}

void NoteView::Select(Position anchor, Position caret) {
  Act([&] { Surface().UserSelect(anchor, caret); });
}

// --- notifications of the surface

void NoteView::DocumentChanged(const DocumentChange& change) {
  ++edits_;
  if (!pane_.Layouter().Composed().text.empty()) pane_.Compose({});
  pane_.Cache().Changed(change);
  pane_.Scroll().Changed(change);
  if (dropCaret_) dropCaret_ = std::min(*dropCaret_, pane_.Content().Length());
  const bool reloaded = change.at == 0 && change.inserted == pane_.Content().Length();
  if (reloaded) pane_.Scroll().Relaid();
  if (reloaded && Surface().Selected() == Selection{}) pane_.Scroll().ToStart();
  host_.Changed(change);
  SettleSoon();
}

void NoteView::SelectionChanged() {
  moved_ = true;
  caretLit_ = focused_;
  SettleSoon();
}

void NoteView::WrapWidthChanged() {
  pane_.Rewrap();
  damage_.Everything();
  SettleSoon();
}

void NoteView::RevealCaret() {
  revealing_ = true;
  SettleSoon();
}

// --- updating the screen

void NoteView::SettleSoon() {
  if (!std::exchange(settleSoon_, true)) host_.SettleSoon();
}

void NoteView::Settle() {
  settleSoon_ = false;
  if (!attached_ || !visible_) return;
  if (std::exchange(revealing_, false)) pane_.Reveal(Surface().Caret());
  if (!NotesAreNumbered()) WrapWidthChanged();
  host_.ShowScrolling();
  const Damage damage = damage_.Take(Marks());
  const std::vector<ShownPiece> shown = pane_.Visible();
  pane_.Cache().Trim(shown.front().piece->from, shown.back().piece->to);
  if (std::exchange(moved_, false)) host_.SelectionMoved();
  host_.ShowDamage(damage);
  if (pane_.Scroll().CanRefine()) host_.IdleSoon();
}

void NoteView::WorkIdly() {
  if (!attached_ || !visible_) return;
  pane_.Scroll().Refine();
  Settle();
}

/// Whether the notes laid out have the numbers that they should have; an edit moves those behind
/// it, and lines with another number of digits may break elsewhere.
bool NoteView::NotesAreNumbered() {
  NoteNumbers& notes = pane_.Layouter().Notes();
  for (const auto& piece : pane_.Cache().Pieces())
    for (const InlineBox& box : piece->boxes)
      if (box.number > 0 && box.number != notes.At(pane_.Content(), piece->ToPosition(box.index)))
        return false;
  return true;
}

std::optional<PixelRect> NoteView::SelectionBox() {
  Settle();
  if (!attached_ || Surface().Selected().Length() == 0) return std::nullopt;
  PixelRect box;
  for (const ShownPiece& piece : pane_.Visible())
    for (const RangeBox& part : BoxesOf(pane_, piece, Surface().Selected()))
      box = box.United(part.box);
  return box.IsEmpty() ? std::nullopt : std::optional(box);
}

ViewMarks NoteView::Marks() {
  ViewMarks marks{.selection = Surface().Selected()};
  if (caretLit_ && marks.selection.Length() == 0) marks.caret = pane_.CaretAt(Surface().Caret());
  if (dropCaret_) marks.dropCaret = pane_.CaretAt(*dropCaret_);
  return marks;
}

// --- calls by the window

void NoteView::Resize(PixelSize size) {
  pane_.Resize(size);
  Settle();
}

void NoteView::Show(bool visible) {
  visible_ = visible;
  damage_.Everything();
  Settle();
}

void NoteView::Focus(bool has) {
  if (!has && !Complete()) return;
  focused_ = caretLit_ = has;
  moved_ = moved_ || has;
  damage_.Everything();
  SettleSoon();
}

void NoteView::Blink() {
  caretLit_ = !caretLit_;
  Settle();
}

void NoteView::ScrollBy(double pixels) {
  if (!attached_) return;
  pane_.Scroll().By(pixels);
  Settle();
}

// A page keeps a line of the one before in sight.
void NoteView::ScrollByPages(double pages) {
  ScrollBy(pages * std::max(kScrollStep, pane_.Size().height - kScrollStep));
}

void NoteView::ScrollTo(double value) {
  pane_.Scroll().To(value);
  Settle();
}

void NoteView::ScrollAcrossTo(double pixels) {
  pane_.ScrolledRight(pixels);
  Settle();
}

void NoteView::Zoom(double factor) {
  pane_.Zoom(std::clamp(factor, kLeastZoom, kMaxZoom));
  damage_.Everything();
  SettleSoon();
}

void NoteView::ZoomBy(double steps) { Zoom(pane_.Zoom() * std::pow(kZoomStep, steps)); }

void NoteView::Restyle() {
  pane_.Cache().Clear();
  damage_.Everything();
  SettleSoon();
}

void NoteView::Compose(Composition text) {
  pane_.Compose(std::move(text));
  SettleSoon();
}

// Some input methods commit what they are told to drop; it must not come twice.
bool NoteView::Complete() {
  const std::u16string composed = pane_.Layouter().Composed().text;
  if (composed.empty()) return attached_;
  {
    const ScopedFlag completing(completing_);
    host_.DropComposition();
  }
  Compose({});
  Type(composed);
  return attached_;
}

void NoteView::DropCaret(std::optional<Position> position) {
  dropCaret_ = position;
  SettleSoon();
}

// --- tests

namespace {

/// Equal looks imply equal texts and formats, except for lines that never compare equal.
bool AreSame(const Piece& one, const Piece& other) {
  const bool unlike = one.overlaps || one.composedLength > 0;
  const auto same = [&](const PieceLine& line, const PieceLine& fresh) {
    return line.start == fresh.start && line.end == fresh.end &&
           (unlike || line.look == fresh.look);
  };
  return one.format == other.format && std::ranges::equal(one.lines, other.lines, same);
}

}  // namespace

std::vector<std::string> NoteView::Differences() {
  std::vector<std::string> differences;
  const auto differ = [&](const Piece& piece, const char* what) {
    differences.push_back("laid-out text from " + std::to_string(piece.from) + ": " + what);
  };
  Position last = 0;
  for (const auto& piece : pane_.Cache().Pieces()) {
    if (piece->from < last || piece->to > pane_.Content().Length()) differ(*piece, "place");
    last = piece->to;
    const PieceSpan span{.from = piece->from, .to = piece->to};
    if (!AreSame(*piece, *pane_.Layouter().LayOut(pane_.Content(), span))) differ(*piece, "lines");
  }
  return differences;
}

}  // namespace lumenote
