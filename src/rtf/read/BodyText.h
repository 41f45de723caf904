// The text of a note as it comes out of an RTF source.
#pragma once
#include <optional>
#include <span>

#include "document/text/Fragment.h"
#include "rtf/read/Reader.h"

namespace lumenote {

/// Lays text and breaks down in a fragment. What only the following source decides is held back:
/// the last break, which may turn out to be the final mark, and the tab behind a table cell, which
/// the end of the row swallows. `Release` must come before text whenever something is held.
class BodyText {
 public:
  bool Holds() const { return holds_; }
  void Release();

  /// Room for text, as `FragmentBuilder` has it.
  std::span<char> ByteRoom() { return builder_.ByteRoom(); }
  std::span<char16_t> UnitRoom() { return builder_.UnitRoom(); }
  void Commit(int count, CharId format) { builder_.Commit(count, format); }
  void Append(std::u16string_view text, CharId format) { builder_.Append(text, format); }

  /// Ends the paragraph, whose formats are `formats`.
  void Break(const FinalMark& formats);
  /// Whether anything stands in the paragraph or table row at hand.
  bool Started() const { return started_ || cell_; }
  /// Ends a cell: a tab, if another cell follows in the row.
  void Cell(CharId format);
  /// The cell that has just been ended, if it may be the last of its row.
  std::optional<CharId> LastCell() const { return cell_; }
  /// Ends a table row, its last cell included.
  void Row(const FinalMark& formats);

  /// `unfinished` are the formats in force at the end of the source, which the text behind the
  /// last break takes.
  Fragment Finish(RtfTarget target, const FinalMark& unfinished);

 private:
  FragmentBuilder builder_;
  std::optional<FinalMark> break_;
  std::optional<CharId> cell_;
  bool holds_ = true;
  bool started_ = false;  // the paragraph has text
};

}  // namespace lumenote
