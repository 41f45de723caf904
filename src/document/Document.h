// The rich-text document: text, runs of formats, paragraphs. No undo, no selection: see Undo.h.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"
#include "document/text/LeafList.h"

namespace lumenote {

/// Invariants: a paragraph break is CR LF, both in one leaf and never torn by an edit; no lone CR
/// or LF stands in the text; the last paragraph has no break, its format is the final mark's.
///
/// Any position may be asked for: one outside 0..`Length()` is clipped, a paragraph outside
/// 0..`ParagraphCount()` - 1 likewise, and an edge of a range that lies inside a CR LF moves
/// outwards (where the range is empty, before it). A range ends where it begins at the latest.
class Document {
 public:
  Document();

  FormatTables& Formats() { return *formats_; }
  const FormatTables& Formats() const { return *formats_; }

  Position Length() const { return leaves_.Length(); }
  /// At least 1; each break starts another paragraph.
  Position ParagraphCount() const { return leaves_.Breaks() + 1; }
  /// The paragraph, counted from 0, that holds `position` (a break belongs to the one it ends).
  Position ParagraphOf(Position position) const;
  Position ParagraphStart(Position paragraph) const;
  /// Just before the paragraph's break, or the end of the document.
  Position ParagraphEnd(Position paragraph) const;

  /// 0 at the end of the document and beyond.
  char16_t At(Position position) const;
  std::u16string Text(Position from, Position to) const;
  /// Of the character at `position`; at the end, of the final mark.
  CharId CharFormatAt(Position position) const;
  /// Of the paragraph that holds `position`.
  ParaId ParaFormatAt(Position position) const;
  FinalMark Mark() const { return mark_; }
  const LeafList& Leaves() const { return leaves_; }

  /// Calls `visit(Position start, TextView text, CharId format)` for each piece of one
  /// format between `from` and `to`, in order; a piece never crosses a leaf.
  template <class Visit>
  void ForEachRun(Position from, Position to, Visit visit) const {
    const Selection range = SnapOutward(from, to);
    leaves_.ForEachRun(range.start, range.end, visit);
  }
  /// Calls `visit(ParaId)` for each paragraph that `from`..`to` touches, in order: the one that
  /// holds `from` and each one that begins before `to`.
  template <class Visit>
  void ForEachParagraph(Position from, Position to, Visit visit) const {
    const Selection range = SnapOutward(from, to);
    const Position last = ParagraphOf(range.Length() == 0 ? range.end : range.end - 1);
    const Position first = ParagraphOf(range.start);
    leaves_.ForEachMark(first, std::min(last + 1, leaves_.Breaks()), visit);
    if (last == leaves_.Breaks()) visit(mark_.paragraph);
  }

  /// The text and formats between two positions; leaves wholly inside are shared, not copied.
  Fragment Copy(Position from, Position to) const;
  /// Puts `fragment` in the place of `from`..`to` and returns what stood there. A fragment that
  /// carries a final mark replaces the document's, and the result then carries the old one. Raises
  /// Overflow, with the document unchanged, when the whole became longer than a position can tell.
  Fragment Replace(Position from, Position to, Fragment fragment) {
    return Replace(SnapOutward(from, to), std::move(fragment));
  }
  /// The same for a range that `SnapOutward` gave, which is taken as it is.
  Fragment Replace(Selection range, Fragment fragment);

  using CharMap = std::function<CharId(CharId)>;
  using ParaMap = std::function<ParaId(ParaId)>;
  /// What `Copy` gives, with the formats of the characters and of the breaks between `from` and
  /// `to`, and on request those of the final mark, replaced by what the maps make of them. A map is
  /// asked once for each format; an empty one keeps all. Text is shared, never copied. Nothing when
  /// no format would change. To change a paragraph take in its break, or its final mark.
  std::optional<Fragment> MapFormats(Position from, Position to, const CharMap& characters,
                                     const ParaMap& paragraphs, bool withMark = false) const;

  /// A position moved out of a CR LF or surrogate pair: backwards, or forwards on request.
  Position SnapBackward(Position position) const;
  Position SnapForward(Position position) const;
  /// The range that an edit of `from`..`to` concerns: clipped, its edges outside every CR LF.
  Selection SnapOutward(Position from, Position to) const;

 private:
  bool InsidePair(Position position) const;

  std::shared_ptr<FormatTables> formats_;
  LeafList leaves_;
  FinalMark mark_;
};

}  // namespace lumenote
