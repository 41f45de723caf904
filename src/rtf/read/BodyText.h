// Builds a note's text as it is read from RTF.
#pragma once
#include <optional>
#include <span>

#include "document/text/Fragment.h"
#include "rtf/read/Reader.h"

namespace lumenote {

/// Puts text and breaks in a fragment. Holds back what depends on the source that follows: the last
/// break, which may be the final mark, and the tab after a table cell, which the end of the row
/// replaces. If anything is held, call `Release` before adding text.
class BodyText {
 public:
  bool Holds() const { return holds_; }
  void Release();

  /// Buffer space for text; see `FragmentBuilder`.
  std::span<char> ByteRoom() { return builder_.ByteRoom(); }
  std::span<char16_t> UnitRoom() { return builder_.UnitRoom(); }
  void Commit(int count, CharId format) { builder_.Commit(count, format); }
  void Append(std::u16string_view text, CharId format) { builder_.Append(text, format); }

  /// Ends the paragraph, which gets the formats `formats`.
  void Break(const FinalMark& formats);
  /// Whether the current paragraph or table row has any content.
  bool Started() const { return started_ || cell_; }
  /// Ends a cell: a tab, if another cell of the row follows.
  void Cell(CharId format);
  /// The cell ended last, if it may be the last of its row.
  std::optional<CharId> LastCell() const { return cell_; }
  /// Ends a table row and its last cell.
  void Row(const FinalMark& formats);

  /// `unfinished` are the formats at the end of the source, which text after the last break gets.
  Fragment Finish(RtfTarget target, const FinalMark& unfinished);

 private:
  FragmentBuilder builder_;
  std::optional<FinalMark> break_;
  std::optional<CharId> cell_;
  bool holds_ = true;
  bool started_ = false;  // the paragraph has text
};

}  // namespace lumenote
