#include "document/paste/ListMerge.h"

#include "document/kept/SourceGroups.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

/// The number of the last such word.
std::optional<int> NumberOf(std::string_view word, std::string_view source) {
  std::optional<int> number;
  SourceTokens tokens(source);
  while (const auto token = tokens.Next())
    if (token->kind == SourceToken::Kind::Word && token->word == word) number = token->number;
  return number;
}

/// A definition with another id, and a number of its own if it is an override.
std::string Numbered(std::string_view source, int list, std::optional<int> override = {}) {
  return WithNumbers(source, {[=](HeadTable table, int number) {
                       if (table == HeadTable::Lists) return list;
                       return table == HeadTable::Overrides ? override.value_or(number) : number;
                     }});
}

/// A definition with its numbers mapped, except \ls: definitions refer to no lists.
std::string Mapped(std::string_view source, const NumberMap& map) {
  return WithNumbers(source, {[&map](HeadTable table, int number) {
                       return table == HeadTable::Overrides ? number : map.number(table, number);
                     }});
}

}  // namespace

ListMerge::ListMerge(std::string_view from, std::string_view to) : from_(TableOf(from)) {
  const Table table = TableOf(to);
  for (const auto& [id, source] : table.lists) listNumbers_.Add(Numbered(source, 0), id);
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
        table.lists.try_emplace(*id, entry.source);
      else
        table.overrides.try_emplace(*number, *id, entry.source);
    }
  }
  return table;
}

void ListMerge::Numbers::Add(const std::string& text, int number) {
  same_[text].insert(number);
  taken_.Take(number);
}

std::optional<std::pair<int, bool>> ListMerge::Numbers::For(const std::string& text, int number) {
  std::set<int>& equal = same_[text];
  const auto own = equal.find(number);
  const auto found = own != equal.end() ? own : equal.lower_bound(least_);
  if (found != equal.end() && (found == own || InRange(*found)))
    return std::pair(equal.extract(found).value(), false);
  const int result = taken_.TakeFree(number);
  if (result != number && !InRange(result)) return std::nullopt;
  return std::pair(result, true);
}

std::optional<int> ListMerge::MapList(int id, const NumberMap& map) {
  const auto [known, added] = lists_.try_emplace(id);
  if (!added) return known->second;
  const auto list = from_.lists.find(id);
  if (list == from_.lists.end()) return std::nullopt;
  const std::string text = Mapped(list->second, map);
  const auto result = listNumbers_.For(Numbered(text, 0), id);
  if (!result) return std::nullopt;
  if (result->second) addedLists_ += Numbered(text, result->first);
  return known->second = result->first;
}

std::optional<int> ListMerge::Map(int number, const NumberMap& map) {
  const auto [known, added] = overrides_.try_emplace(number);
  if (!added) return known->second;
  const auto entry = from_.overrides.find(number);
  if (entry == from_.overrides.end()) return std::nullopt;
  const auto& [id, source] = entry->second;
  const std::optional<int> list = MapList(id, map);
  if (!list) return std::nullopt;
  const std::string text = Mapped(source, map);
  const auto result = overrideNumbers_.For(Numbered(text, *list, 0), number);
  if (!result) return std::nullopt;
  if (result->second) addedOverrides_ += Numbered(text, *list, result->first);
  return known->second = result->first;
}

}  // namespace lumenote
