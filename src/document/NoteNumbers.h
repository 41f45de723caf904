// The numbers of the footnotes.
#pragma once
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// Counts the footnotes of one document that have a number, as far as it is asked for. After an
/// edit it counts anew, by runs.
class NoteNumbers {
 public:
  /// The number, from 1, of the footnote at `position`; 0 if it has a mark of its own, which is in
  /// the text.
  int At(const Document& document, Position position);

 private:
  bool IsNumbered(const FormatTables& tables, CharId format);
  void CountTo(const Document& document, Position end);

  std::uint64_t version_ = 0;    // of the document
  std::vector<Position> notes_;  // those with a number before `counted_`, in order
  Position counted_ = 0;
  std::unordered_map<CharId, bool> numbered_;  // by the formats of footnotes
};

}  // namespace lumenote
