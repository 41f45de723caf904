// The visible numbers that an edit makes wrong, and what they become.
#pragma once
#include <unordered_set>
#include <vector>

#include "document/Document.h"
#include "document/lists/ListCounter.h"
#include "document/lists/NumberChanges.h"

namespace lumenote {

/// What the edits of one command did to lists.
struct EditedLists {
  std::unordered_set<ParaId> formats;  // of items that came, went or were joined
  std::vector<Selection> ranges;       // where the edits left their text
};

/// What the edits change in the lists of those items, in order. A paragraph that an edit touched
/// gets the number that it lacks, if its list shows any. Numbers change, or go from inside a
/// paragraph, only if they look as the list says, so that nothing typed is lost.
std::vector<NumberChange> Renumbered(const Document& document, FormatTables& tables,
                                     NoteLists& lists, const EditedLists& edited);

}  // namespace lumenote
