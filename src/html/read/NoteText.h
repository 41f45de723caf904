// Builds a note's text as it is read from HTML: white space, paragraphs, cells.
#pragma once
#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"
#include "html/read/Look.h"
#include "html/words/LinkRepeats.h"

namespace lumenote {

/// Whether a character stands for itself, whatever the look.
bool IsOrdinary(char16_t c);

/// What stands before the text of a list item.
struct ItemMarker {
  std::u16string number;  // empty for a bullet
  WordsId words = 0;      // the kept group that numbers the paragraph
};

/// A paragraph begins with its first content and takes its format from there. What depends on what
/// follows is held back: a space before the next word, a line break before more of the paragraph, a
/// paragraph's break, the end of a cell.
class NoteText {
 public:
  explicit NoteText(FormatTables& formats) : formats_(formats) {}

  /// Collapses white space, unless the look preserves it. Characters that no note has are dropped.
  void Text(std::u16string_view text, const Look& look);
  void LineBreak(const Look& look);
  /// A character that stands for a kept item.
  void Object(KeptItem item, const Look& look);
  void Tabs(int count, const Look& look);

  /// Begins a paragraph, unless there is one already.
  void Begin(const Look& look);
  /// Ends the paragraph, if there is one.
  void End();
  /// At least so much space, in twips, lies between the paragraphs before and after.
  void Space(int twips) { space_ = std::max(space_, twips); }
  /// Stated space of the next paragraph and of the last one; the greatest counts.
  void SpaceBefore(int twips) { before_ = std::max(before_.value_or(twips), twips); }
  void SpaceAfter(int twips);
  /// Marks the next paragraph; an earlier mark that is not used yet is lost.
  void Mark(std::optional<ItemMarker> marker) { marker_ = std::move(marker); }

  void BeginCell();
  /// The cell has the format of its last paragraph, or of `look` if it is empty.
  void EndCell(const Look& look);
  /// Ends the row after its last cell, if it has any.
  void EndRow(KeptItem definition, const Look& look);

  Position Length() const { return builder_.Length(); }
  /// Number of paragraphs begun so far.
  int Paragraphs() const { return paragraphs_; }

  /// With a mark that has the formats of the last paragraph.
  Fragment FinishDocument(const Look& look);
  /// Without the last paragraph's break, but for a list's item after other paragraphs.
  Fragment FinishSelection();

 private:
  struct Ended {
    CharFormat character;
    ParaFormat paragraph;
  };

  void Special(char16_t unit, const Look& look);
  CharFormat FormatOf(CharFormat character) const;
  void BeforeContent(const Look& look);
  void Append(std::u16string_view text, const CharFormat& format);
  void PlaceMarker(ParaFormat& paragraph, const Look& look);
  bool MayGoOn(KeptId link);
  void Release();
  CharId Plain(CharFormat format);
  CharId With(CharFormat format, const Kept& kept);

  FormatTables& formats_;
  FragmentBuilder builder_;
  std::optional<Ended> open_;            // the paragraph at hand, with its last character's format
  std::optional<Ended> ended_;           // the break after a paragraph, held back
  std::optional<Ended> cell_;            // the end of a cell, held back
  std::optional<CharFormat> blank_;      // a collapsed space, held back
  std::optional<CharFormat> lineBreak_;  // held back
  bool lineBegun_ = false;               // the line has content
  std::optional<ItemMarker> marker_;
  bool marked_ = false;    // the last paragraph is an item
  KeptId link_ = 0;        // the last one in which a paragraph began
  bool unlinked_ = false;  // the paragraph states no link
  LinkRepeats repeats_;
  int space_ = 0;
  std::optional<int> before_;
  int paragraphs_ = 0;
};

}  // namespace lumenote
