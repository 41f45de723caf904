// What an RTF group can change and its closing brace brings back.
#pragma once
#include <memory>

#include "document/formats/Formats.h"
#include "rtf/codepages/CodePage.h"
#include "rtf/read/ItemKeeper.h"

namespace lumenote {

/// A paragraph's format in RTF's own terms; `Resolved` says what it amounts to.
struct ParagraphState {
  enum Length { kLeft, kFirst, kRight, kBefore, kAfter, kLine, kLengths };
  int lengths[kLengths] = {};  // twips; kLine as \sl has it
  bool multipleLines = false;  // \slmult
  Alignment alignment = Alignment::Left;
  bool rightToLeft = false;
  bool bullet = false;    // by a \pn group
  int list = -1;          // \ls; -1 none
  int level = 0;          // \ilvl
  bool numbered = false;  // by a \pn group
  bool inTable = false;   // \intbl
  int nesting = 0;        // \itap
  WordsId words = 0;      // kept
  std::shared_ptr<const TabStops> tabs;
  TabStop nextTab;  // kind and leader given for the next \tx

  void AddTab(int position);
  /// The format but for `tabs`, `bullet` and `list`, which need the tables of the document and the
  /// source.
  ParaFormat Resolved() const;
};

struct GroupState {
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

  CharFormat character;
  ParagraphState paragraph;
  CodePage page;     // of text bytes
  int fallback = 1;  // \uc: characters that follow a \u for readers without Unicode

  FieldId field = 0;                 // the innermost one, 0 none
  KeptId inField = 0;                // what is kept with a character in that field
  int openFields = 0;                // fields around each other
  std::size_t fieldAt = kNowhere;    // offset of the \field whose result is still to come
  bool fieldShown = false;           // it has come
  std::size_t laidBefore = 0;        // what the reader had laid down when that field began
  ItemKeeper::Place keptBefore = 0;  // and where it stood in what is kept

  // Numbers of the formats in the document's tables, while they are known.
  bool characterKnown = false;
  bool paragraphKnown = false;
  CharId characterId = 0;
  ParaId paragraphId = 0;
};

}  // namespace lumenote
