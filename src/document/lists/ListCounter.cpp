#include "document/lists/ListCounter.h"

#include <algorithm>

namespace lumenote {

NoteLists::NoteLists(const FormatTables& tables, HeadId head)
    : tables_(tables), page_(tables.heads[head].page), definitions_(page_) {
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
  auto group = groups_.find(key);
  if (group == groups_.end()) group = groups_.emplace(key, Group(tables_.names[*name])).first;
  return group->second ? ListKey{ListKey::Kind::Group, key} : ListKey();
}

std::optional<ListLevels> NoteLists::Group(std::string_view source) const {
  const std::optional<ListLevel> level = NumberingOf(source, page_);
  if (!level) return std::nullopt;
  ListLevels levels;
  levels[0] = *level;
  return levels;
}

const ListLevels& NoteLists::LevelsOf(ParaId paragraph) {
  const ListKey key = KeyOf(paragraph);
  if (key.kind == ListKey::Kind::Group) return *groups_.at(key.number);
  const int number = tables_.paragraphs[paragraph].list - 1;
  auto levels = overrides_.find(number);
  if (levels == overrides_.end())
    levels =
        overrides_.emplace(number, definitions_.LevelsOf(*definitions_.Override(number))).first;
  return levels->second;
}

int NoteLists::LevelOf(ParaId paragraph) const {
  const ParaFormat& format = tables_.paragraphs[paragraph];
  return format.list == 0 ? 0 : std::min<int>(format.level, kListLevels - 1);
}

bool NoteLists::CouldNumber(ParaId paragraph, std::u16string_view text) {
  return KeyOf(paragraph).kind != ListKey::Kind::None &&
         LooksLikeNumber(text, LevelsOf(paragraph), LevelOf(paragraph));
}

std::optional<std::u16string> ListCounter::Next(ParaId paragraph) {
  const ListKey key = lists_.KeyOf(paragraph);
  const ParaFormat& format = tables_.paragraphs[paragraph];
  const std::int32_t left = format.firstIndent + format.hangingIndent;
  if (!series_.empty()) LeaveSeries(left, key.kind != ListKey::Kind::None || format.bullet != 0);
  if (key.kind == ListKey::Kind::Group)
    return OfGroup(key.number, lists_.LevelsOf(paragraph), left);
  return key.kind == ListKey::Kind::Table ? OfTable(paragraph) : std::nullopt;
}

std::optional<std::u16string> ListCounter::OfTable(ParaId paragraph) {
  const ParaFormat& format = tables_.paragraphs[paragraph];
  const ListOverride& override = *lists_.Definitions().Override(format.list - 1);
  Counted& list = counted_[override.list];
  UseOverride(list, override, paragraph);
  const ListLevels& levels = *list.levels;
  const auto level = static_cast<std::size_t>(lists_.LevelOf(paragraph));
  for (std::size_t upper = 0; upper < level; ++upper)
    if (!list.begun[upper]) list.numbers[upper] = levels[upper].start;
  int& own = list.numbers[level];
  own = list.begun[level] ? own + (own < INT32_MAX ? 1 : 0) : levels[level].start;
  list.begun[level] = true;
  for (std::size_t lower = level + 1; lower < list.begun.size(); ++lower)
    if (levels[lower].restarts) list.begun[lower] = false;
  if (format.bullet != 0 || levels[level].text.empty()) return {};
  return ListNumberText(levels, static_cast<int>(level), list.numbers);
}

/// An override that states where a level starts does so once.
void ListCounter::UseOverride(Counted& list, const ListOverride& override, ParaId paragraph) {
  const int number = tables_.paragraphs[paragraph].list - 1;
  if (list.override == number) return;
  list.override = number;
  list.levels = &lists_.LevelsOf(paragraph);
  if (!met_.try_emplace(number, true).second) return;
  for (const ListOverride::Level& level : override.levels)
    if (level.start) list.begun[static_cast<std::size_t>(level.number)] = false;
}

std::optional<std::u16string> ListCounter::OfGroup(int group, const ListLevels& levels,
                                                   std::int32_t left) {
  const bool goesOn = !series_.empty() && series_.back().left == left;
  if (goesOn && series_.back().group == group) {
    Series& series = series_.back();
    if (series.number < INT32_MAX) ++series.number;
  } else {
    if (goesOn) series_.pop_back();
    series_.push_back({group, left, levels[0].start});
  }
  return ListNumberText(levels, 0, {series_.back().number});
}

void ListCounter::LeaveSeries(std::int32_t left, bool item) {
  while (!series_.empty() && (series_.back().left > left || (!item && series_.back().left == left)))
    series_.pop_back();
}

}  // namespace lumenote
