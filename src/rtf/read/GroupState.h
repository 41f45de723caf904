// The state that a group may change and its closing brace restores.
#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>

#include "base/codepages/CodePage.h"
#include "document/formats/Formats.h"
#include "rtf/read/ItemKeeper.h"

namespace lumenote {

/// A paragraph's format in RTF's own terms.
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
  TabStop nextTab;  // kind and leader for the next \tx

  void AddTab(int position);
  /// The equivalent format, without `tabs`, `bullet` and `list`, which depend on the tables of
  /// document and source.
  ParaFormat Resolved() const;
};

struct GroupState {
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

  CharFormat character;
  int fontNumber = 0;  // of the last \f
  NameId part = 0;     // marker of the part of `character.words` that is being said, 0 none
  ParagraphState paragraph;
  CodePage page;     // of text bytes
  int fallback = 1;  // \uc: number of fallback characters after a \u

  std::uint32_t paragraphEdit = 0;  // number of the last change of `paragraph`
  std::size_t contentAtStart = 0;   // the reader's content count when the group began

  bool inNestedRow = false;  // in a \nesttableprops group

  FieldId field = 0;                 // the innermost one, 0 none
  KeptId inField = 0;                // the kept number of plain characters in that field
  int openFields = 0;                // nesting depth of fields
  std::size_t fieldAt = kNowhere;    // offset of a \field whose result has not come yet
  bool fieldShown = false;           // the result has come
  std::size_t contentBefore = 0;     // the reader's content count when that field began
  ItemKeeper::Index keptBefore = 0;  // the position in the kept items at that time

  // The formats' numbers in the document's tables, where still valid.
  bool characterKnown = false;
  bool paragraphKnown = false;
  CharId characterId = 0;
  ParaId paragraphId = 0;
};

}  // namespace lumenote
