// The rich-text document: text, format runs, paragraphs. Undo is in Undo.h, selection in
// `EditingCore`.
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

/// Invariants: a paragraph break is a CR LF pair, within one leaf and never split by an edit; no CR
/// or LF is unpaired; the last paragraph has no break, its format is the final mark's.
///
/// Every position is accepted: one outside 0..`Length()` is clipped, and so is a paragraph number
/// outside 0..`ParagraphCount()` - 1. An edge of a range inside a CR LF moves outwards; an empty
/// range there moves before it. A range whose end precedes its start is empty.
class Document {
 public:
  Document();

  FormatTables& Formats() { return *formats_; }
  const FormatTables& Formats() const { return *formats_; }

  /// Differs after each edit.
  std::uint64_t Version() const { return version_; }

  Position Length() const { return leaves_.Length(); }
  /// At least 1: each break starts another paragraph.
  Position ParagraphCount() const { return leaves_.Breaks() + 1; }
  /// The paragraph, from 0, that holds `position`; a break belongs to the paragraph it ends.
  Position ParagraphOf(Position position) const;
  Position ParagraphStart(Position paragraph) const;
  /// The position before the paragraph's break, or the end of the document.
  Position ParagraphEnd(Position paragraph) const;

  /// 0 at and beyond the end of the document.
  char16_t At(Position position) const;
  std::u16string Text(Position from, Position to) const;
  /// The format of the character at `position`; at the end, the final mark's.
  CharId CharFormatAt(Position position) const;
  /// The format of the paragraph that holds `position`.
  ParaId ParaFormatAt(Position position) const;
  FinalMark Mark() const { return mark_; }
  const LeafList& Leaves() const { return leaves_; }

  /// Calls `visit(Position start, TextView text, CharId format)` for each run in `from`..`to`, in
  /// order; a run that spans leaves is visited leaf by leaf.
  template <class Visit>
  void ForEachRun(Position from, Position to, Visit visit) const {
    const Selection range = SnapOutward(from, to);
    leaves_.ForEachRun(range.start, range.end, visit);
  }
  /// Calls `visit(ParaId)` for each paragraph that `from`..`to` touches, in order: the one that
  /// holds `from`, and each one that starts before `to`.
  template <class Visit>
  void ForEachParagraph(Position from, Position to, Visit visit) const {
    const Selection range = SnapOutward(from, to);
    const Position last = ParagraphOf(range.Length() == 0 ? range.end : range.end - 1);
    const Position first = ParagraphOf(range.start);
    leaves_.ForEachMark(first, std::min(last + 1, leaves_.Breaks()), visit);
    if (last == leaves_.Breaks()) visit(mark_.paragraph);
  }

  /// The text and formats of a range; shares leaves that lie wholly inside.
  Fragment Copy(Position from, Position to) const;
  /// Replaces `from`..`to` by `fragment` and returns what was there. A final mark in the fragment
  /// replaces the document's, and the result carries the old one. If the document would become too
  /// long raises Overflow and changes nothing.
  Fragment Replace(Position from, Position to, Fragment fragment) {
    return Replace(SnapOutward(from, to), std::move(fragment));
  }
  /// The same for a range returned by `SnapOutward`, used as it is.
  Fragment Replace(Selection range, Fragment fragment);

  using CharMap = std::function<CharId(CharId)>;
  using ParaMap = std::function<ParaId(ParaId)>;
  /// The result of `Copy`, with the formats of its characters and breaks, and on request the final
  /// mark's, mapped. Each map is called once per format; an empty map changes nothing. Shares the
  /// text. Returns empty if no format changes. A paragraph is mapped only if its break, or its
  /// final mark, is included.
  std::optional<Fragment> MapFormats(Position from, Position to, const CharMap& characters,
                                     const ParaMap& paragraphs, bool withMark = false) const;

  /// Moves a position out of a CR LF or surrogate pair, to its start (end).
  Position SnapBackward(Position position) const;
  Position SnapForward(Position position) const;
  /// The range that an edit of `from`..`to` affects: clipped, with no edge inside a CR LF.
  Selection SnapOutward(Position from, Position to) const;

 private:
  bool InsidePair(Position position) const;

  std::shared_ptr<FormatTables> formats_;
  LeafList leaves_;
  FinalMark mark_;
  std::uint64_t version_ = 1;
};

}  // namespace lumenote
