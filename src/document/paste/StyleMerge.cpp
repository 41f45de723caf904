#include "document/paste/StyleMerge.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "document/kept/SourceGroups.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

bool IsStyleWord(std::string_view word) {
  static constexpr std::string_view kWords[] = {"s", "cs", "ds", "ts"};
  return std::ranges::find(kWords, word) != std::end(kWords);
}

}  // namespace

StyleMerge::StyleMerge(std::string_view from, std::string_view to) {
  for (Entry& entry : EntriesOf(from)) from_.try_emplace(entry.number, std::move(entry));
  for (Entry& entry : EntriesOf(to)) {
    numbers_.Take(entry.number);
    names_.try_emplace(std::move(entry.name), entry.number);
  }
}

std::vector<StyleMerge::Entry> StyleMerge::EntriesOf(std::string_view source) {
  std::vector<Entry> entries;
  for (const SourceGroup& group : GroupsOf(source))
    if (group.word == "stylesheet")
      for (const SourceGroup& entry : GroupsOf(InsideOf(group.source)))
        entries.push_back(EntryOf(entry.source));
  return entries;
}

StyleMerge::Entry StyleMerge::EntryOf(std::string_view source) {
  using Kind = SourceToken::Kind;
  Entry entry{.number = 0, .name = {"s", {}}, .source = source};
  int depth = 0;
  bool numbered = false;
  SourceTokens tokens(source);
  while (const auto token = tokens.Next()) {
    if (token->kind == Kind::Open) ++depth;
    if (token->kind == Kind::Close) --depth;
    if (depth != 1) continue;
    if (token->kind == Kind::Character && token->character != u';')
      entry.name.second += token->character;
    if (numbered || token->kind != Kind::Word || !IsStyleWord(token->word)) continue;
    entry.name.first = token->word;
    entry.number = token->number;
    numbered = true;
  }
  return entry;
}

std::optional<int> StyleMerge::Map(int number) {
  const auto entry = from_.find(number);
  if (entry == from_.end()) return std::nullopt;
  const auto [known, added] = known_.try_emplace(number, 0);
  if (added) known->second = Add(entry->second);
  return known->second;
}

int StyleMerge::Add(const Entry& entry) {
  const auto same = names_.find(entry.name);
  if (same != names_.end()) return same->second;
  if (entry.number == 0 && numbers_.Contains(0)) return 0;
  const int number = numbers_.TakeFree(entry.number);
  names_.try_emplace(entry.name, number);
  added_.push_back(entry.source);
  return number;
}

std::string StyleMerge::TakeAdded(const NumberMap& map) {
  if (added_.empty()) return {};
  const std::string_view source = added_.back();
  added_.pop_back();
  return WithNumbers(source, map);
}

}  // namespace lumenote
