#include "rtf/read/Keeper.h"

#include <algorithm>
#include <utility>

#include "rtf/kept/KeptSource.h"
#include "rtf/kept/KeptWords.h"

namespace lumenote {
namespace {

constexpr std::size_t kMostWords = 512;  // bytes of the kept words of one format
constexpr std::size_t kLeastWords = 1 << 16;

}  // namespace

Keeper::Keeper(FormatTables& formats, std::size_t sourceLength)
    : formats_(formats), wordsLeft_(sourceLength + kLeastWords) {}

/// A word says nothing twice, but the parts of a border come once for each of its sides.
WordsId Keeper::With(const Token& word, WordsId words) {
  std::string source = formats_.words[words].source;
  if (!word.text.starts_with("br")) EraseWord(word.text, source);
  NeedTablesIf(NamesTableEntry(word.text));
  return WordsNumber(source + SourceOf(word), words);
}

WordsId Keeper::WithGroup(const std::string& group, WordsId words) {
  return WordsNumber(formats_.words[words].source + group, words);
}

WordsId Keeper::WithScript(const Token& word, WordsId words) {
  NeedTablesIf(NamesTableEntry(word.text));
  const std::string& known = formats_.words[words].source;
  if (!IsMarker(word.text)) return WordsNumber(WithAssociated(known, script_, word), words);
  script_ = word.text;
  return WordsNumber(WithMarker(known, script_), words);
}

WordsId Keeper::WordsNumber(std::string source, WordsId otherwise) {
  const std::size_t size = source.size();
  if (size > kMostWords || size > wordsLeft_) return otherwise;
  const std::uint32_t known = formats_.words.Size();
  const WordsId number = formats_.words.Intern({std::move(source)});
  if (formats_.words.Size() != known) wordsLeft_ -= size;
  return number;
}

std::string Keeper::TakeSince(Place place) {
  const std::size_t from = std::clamp(place, taken_, Here()) - taken_;
  std::string since = pending_.substr(from);
  pending_.resize(from);
  return since;
}

std::string Keeper::Take() {
  taken_ = Here();
  return std::exchange(pending_, {});
}

KeptId Keeper::KeptNumber(Kept kept) {
  if (!kept.before.empty()) kept.serial = formats_.NextSerial();
  return formats_.kept.Intern(std::move(kept));
}

}  // namespace lumenote
