// Control words of a run or paragraph format that the editor does not show.
#pragma once
#include <cstdint>
#include <type_traits>

#include "document/formats/Formats.h"

namespace lumenote {

/// One control word, as a chain node.
struct KeptWord {
  enum class Kind : std::uint8_t {
    Bare,         // \name
    Numbered,     // \name12
    RightToLeft,  // \rtlch, a marker: the words after it apply to text of that direction
    LeftToRight,  // \ltrch
    Script,       // the same for a script: \loch, \dbch
    HighScript,   // \hich
    Numbering,    // not a word but the group that numbers the paragraph
    Font,         // not a word but the place among the markers where the run's own font is said
    Size          // the same for its size, if a marker follows
  };
  NameId name : 24 = 0;
  Kind kind : 8 = Kind::Bare;
  std::int32_t number = 0;
  WordsId next = 0;
  bool operator==(const KeptWord&) const = default;
};
static_assert(std::has_unique_object_representations_v<KeptWord>);

inline bool IsDirection(KeptWord::Kind kind) {
  return kind == KeptWord::Kind::RightToLeft || kind == KeptWord::Kind::LeftToRight;
}
inline bool IsScript(KeptWord word) {
  return word.kind == KeptWord::Kind::Script || word.kind == KeptWord::Kind::HighScript;
}
inline bool IsNumbering(KeptWord word) { return word.kind == KeptWord::Kind::Numbering; }
inline bool IsMark(KeptWord word) {
  return word.kind >= KeptWord::Kind::RightToLeft && word.kind <= KeptWord::Kind::HighScript;
}

}  // namespace lumenote
