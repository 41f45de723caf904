#include "rtf/words/LateWords.h"

#include "rtf/words/ParagraphWords.h"

namespace lumenote {
namespace {

/// The rest of the chain `longer` behind the words of `shorter`; none if it begins otherwise.
std::optional<WordsId> WordsBehind(WordsId shorter, WordsId longer, const FormatTables& tables) {
  const auto same = [&](KeptWord one, KeptWord other) {
    one.next = other.next;
    return one == other;
  };
  for (; shorter != 0; shorter = tables.words[shorter].next, longer = tables.words[longer].next)
    if (longer == 0 || !same(tables.words[shorter], tables.words[longer])) return std::nullopt;
  return longer;
}

/// Drops from a format what it has in common with another one, but for its kept words.
class Difference {
 public:
  Difference(const ParaFormat& from, const ParaFormat& to) : from_(from), added_(to) {}

  ParaFormat Take();

 private:
  bool Same(ParaStated attribute, bool equal) {
    const bool same = equal && (from_.stated & attribute) == (added_.stated & attribute);
    if (same) added_.stated = static_cast<std::uint16_t>(added_.stated & ~attribute);
    return same;
  }
  template <class Value>
  void Drop(ParaStated attribute, Value ParaFormat::*member) {
    if (Same(attribute, added_.*member == from_.*member)) added_.*member = Value{};
  }
  void DropIndents();

  const ParaFormat& from_;
  ParaFormat added_;
};

/// RTF counts the first line's indent from the left one.
void Difference::DropIndents() {
  int left = added_.firstIndent + added_.hangingIndent;
  if (Same(kStatesLeftIndent, left == from_.firstIndent + from_.hangingIndent)) left = 0;
  Drop(kStatesFirstIndent, &ParaFormat::hangingIndent);
  added_.firstIndent = left - added_.hangingIndent;
}

ParaFormat Difference::Take() {
  added_.tabs = 0;
  added_.list = 0;
  DropIndents();
  for (const LengthWord& word : kLengthWords) Drop(word.stated, word.length);
  if (added_.lineSpacing == from_.lineSpacing) Drop(kStatesLineSpacing, &ParaFormat::lineRule);
  Drop(kStatesAlignment, &ParaFormat::alignment);
  Drop(kStatesDirection, &ParaFormat::rightToLeft);
  return added_;
}

}  // namespace

std::optional<ParaFormat> Addition(const ParaFormat& from, const ParaFormat& to,
                                   const FormatTables& tables) {
  const std::optional<WordsId> words = WordsBehind(from.words, to.words, tables);
  if (!words || from.tabs != to.tabs || (from.stated & ~to.stated) != 0) return std::nullopt;
  ParaFormat added = Difference(from, to).Take();
  added.words = *words;
  return added;
}

}  // namespace lumenote
