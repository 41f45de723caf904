// What an RTF group can change and its closing brace brings back.
#pragma once
#include <memory>

#include "document/formats/Formats.h"
#include "rtf/codepages/CodePage.h"
#include "rtf/read/ItemKeeper.h"

namespace lumenote {

/// A paragraph's format, some of it still in RTF's own terms; `Resolved` says what they amount to.
struct ParagraphState {
  ParaFormat format;
  int left = 0;                // twips, \li
  int first = 0;               // from there, \fi
  int line = 0;                // \sl
  bool multipleLines = false;  // \slmult
  bool bullet = false;         // by a \pn group
  int list = -1;               // \ls; -1 none
  int level = 0;               // \ilvl
  bool numbered = false;       // by a \pn group
  bool inTable = false;        // \intbl
  int nesting = 0;             // \itap
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
