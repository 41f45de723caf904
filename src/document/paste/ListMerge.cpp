#include "document/paste/ListMerge.h"

#include <algorithm>

#include "document/kept/SourceGroups.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

constexpr int kHighest = 1 << 30;
constexpr int kHighestOverride = 0xFFFE;  // that a paragraph can hold

/// The number of the last such word.
std::optional<int> NumberOf(std::string_view word, std::string_view source) {
  std::optional<int> number;
  SourceTokens tokens(source);
  while (const auto token = tokens.Next())
    if (token->kind == SourceToken::Kind::Word && token->word == word) number = token->number;
  return number;
}

/// A definition with another id and number of its own.
std::string Numbered(std::string_view source, int list, int override) {
  return WithNumbers(source, {[=](HeadTable table, int number) {
                       if (table == HeadTable::Lists) return list;
                       return table == HeadTable::Overrides ? override : number;
                     }});
}

}  // namespace

ListMerge::ListMerge(std::string_view from, std::string_view to) : from_(TableOf(from)) {
  const Table table = TableOf(to);
  for (const auto& [id, source] : table.lists) listNumbers_.Add(Numbered(source, 0, 0), id);
  for (const auto& [number, entry] : table.overrides)
    overrideNumbers_.Add(Numbered(entry.second, entry.first, 0), number);
}

ListMerge::Table ListMerge::TableOf(std::string_view source) {
  Table table;
  for (const SourceGroup& group : GroupsOf(source)) {
    const bool lists = group.word == "listtable";
    if (!lists && group.word != "listoverridetable") continue;
    for (const SourceGroup& entry : GroupsOf(InsideOf(group.source))) {
      const std::optional<int> id = NumberOf("listid", entry.source);
      const std::optional<int> number = lists ? id : NumberOf("ls", entry.source);
      if (!id || !number) continue;
      if (lists)
        table.lists[*id] = entry.source;
      else
        table.overrides[*number] = {*id, entry.source};
    }
  }
  return table;
}

void ListMerge::Numbers::Add(const std::string& text, int number) {
  same[text].insert(number);
  taken.insert(number);
  if (number < kHighest) next = std::max(next, number + 1);
}

std::pair<int, bool> ListMerge::Numbers::For(const std::string& text, int number) {
  std::unordered_set<int>& equal = same[text];
  const bool isNew = equal.empty();
  const auto found = equal.contains(number) ? equal.find(number) : equal.begin();
  const int result = !isNew ? *found : taken.contains(number) ? next : number;
  if (!isNew) equal.erase(found);
  taken.insert(result);
  if (result < kHighest) next = std::max(next, result + 1);
  return {result, isNew};
}

std::optional<int> ListMerge::MapList(int id, const NumberMap& map) {
  const auto [known, added] = lists_.try_emplace(id);
  if (!added) return known->second;
  const auto list = from_.lists.find(id);
  if (list == from_.lists.end()) return std::nullopt;
  const std::string text = WithNumbers(list->second, map);
  const auto [number, isNew] = listNumbers_.For(Numbered(text, 0, 0), id);
  if (isNew) addedLists_ += Numbered(text, number, 0);
  return lists_[id] = number;
}

std::optional<int> ListMerge::Map(int number, const NumberMap& map) {
  const auto [known, added] = overrides_.try_emplace(number);
  if (!added) return known->second;
  const auto entry = from_.overrides.find(number);
  if (entry == from_.overrides.end()) return std::nullopt;
  const auto& [id, source] = entry->second;
  const std::optional<int> list = MapList(id, map);
  if (!list || overrideNumbers_.next >= kHighestOverride) return std::nullopt;
  const std::string text = WithNumbers(source, map);
  const auto [result, isNew] = overrideNumbers_.For(Numbered(text, *list, 0), number);
  if (isNew) addedOverrides_ += Numbered(text, *list, result);
  return overrides_[number] = result;
}

}  // namespace lumenote
