#include "document/lists/ListCounter.h"

#include <algorithm>

namespace lumenote {
namespace {

bool IsNumbering(KeptWord word) { return word.kind == KeptWord::Kind::Numbering; }

std::size_t LevelOf(const ParaFormat& format) {
  return std::min<std::size_t>(format.level, kListLevels - 1);
}

}  // namespace

NoteLists::NoteLists(const FormatTables& tables, HeadId head) : tables_(tables) {
  tables.items.ForEach(tables.heads[head].items,
                       [this](const KeptItem& item) { definitions_.Read(item.source); });
}

std::optional<NameId> NoteLists::GroupName(const ParaFormat& format) const {
  std::optional<NameId> name;
  tables_.words.ForEach(format.words, [&](KeptWord word) {
    if (IsNumbering(word)) name = NameId{word.name};
  });
  return name;
}

ListKey NoteLists::KeyOf(ParaId paragraph) {
  const ParaFormat& format = tables_.paragraphs[paragraph];
  if (format.list != 0) {
    const ListOverride* override = definitions_.Override(format.list - 1);
    if (!override) return {};
    return {ListKey::Kind::Table, override->list};
  }
  const auto name = format.words == 0 ? std::nullopt : GroupName(format);
  if (!name) return {};
  const auto key = static_cast<int>(*name);
  const auto [group, added] = groups_.try_emplace(key);
  if (added) group->second = NumberingOf(tables_.names[*name]);
  return group->second ? ListKey{ListKey::Kind::Group, key} : ListKey();
}

ListCounter::Number ListCounter::Next(ParaId paragraph) {
  const ListKey key = lists_.KeyOf(paragraph);
  const ParaFormat& format = tables_.paragraphs[paragraph];
  const std::int32_t left = format.firstIndent + format.hangingIndent;
  if (!series_.empty()) LeaveSeries(left, key.kind != ListKey::Kind::None || format.bullet != 0);
  if (key.kind == ListKey::Kind::Group) return OfGroup(key, left);
  return key.kind == ListKey::Kind::Table ? OfTable(format) : Number();
}

ListCounter::Number ListCounter::OfTable(const ParaFormat& format) {
  const int number = format.list - 1;
  const ListOverride& override = *lists_.Definitions().Override(number);
  Counted& list = counted_[override.list];
  UseOverride(list, override, number);
  const std::size_t level = LevelOf(format);
  for (std::size_t upper = 0; upper < level; ++upper)
    if (!list.begun[upper]) list.numbers[upper] = list.levels[upper].start;
  int& own = list.numbers[level];
  own = list.begun[level] ? own + (own < INT32_MAX ? 1 : 0) : list.levels[level].start;
  list.begun[level] = true;
  for (std::size_t lower = level + 1; lower < list.begun.size(); ++lower)
    if (list.levels[lower].restarts) list.begun[lower] = false;
  const ListLevel& look = list.levels[level];
  if (format.bullet != 0 || look.text.empty()) return {};
  return {ListNumberText(list.levels, static_cast<int>(level), list.numbers), look.text};
}

/// An override that states where a level starts does so once.
void ListCounter::UseOverride(Counted& list, const ListOverride& override, int number) {
  if (list.override == number) return;
  list.override = number;
  list.levels = lists_.Definitions().LevelsOf(override);
  if (!met_.try_emplace(number, true).second) return;
  for (const ListOverride::Level& level : override.levels)
    if (level.start) list.begun[static_cast<std::size_t>(level.number)] = false;
}

ListCounter::Number ListCounter::OfGroup(const ListKey& key, std::int32_t left) {
  const ListLevel& level = lists_.Group(key);
  const bool goesOn = !series_.empty() && series_.back().left == left;
  if (goesOn && series_.back().group == key.number) {
    Series& series = series_.back();
    if (series.number < INT32_MAX) ++series.number;
  } else {
    if (goesOn) series_.pop_back();
    series_.push_back({key.number, left, level.start});
  }
  ListLevels levels;
  levels[0] = level;
  return {ListNumberText(levels, 0, {series_.back().number}), level.text};
}

void ListCounter::LeaveSeries(std::int32_t left, bool item) {
  while (!series_.empty() && (series_.back().left > left || (!item && series_.back().left == left)))
    series_.pop_back();
}

}  // namespace lumenote
