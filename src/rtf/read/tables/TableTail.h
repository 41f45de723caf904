// Recognises the rest of a table of the head that a "}" too many has closed early.
#pragma once
#include <cstddef>

#include "rtf/source/Tokenizer.h"

namespace lumenote {

struct TableTail {
  bool found = false;
  std::size_t end = 0;  // offset of the tail's own "}"; if there is no tail, of what shows that
};

/// Looks for a tail at the tokenizer's position, between the groups of the head: entries of fonts
/// or styles, colours, or digits, up to a "}" that is not the document's. `surplus` means that an
/// unmatched "}" comes before, so that the tail may begin anywhere in an entry.
TableTail FindTableTail(Tokenizer tokens, bool surplus);

}  // namespace lumenote
