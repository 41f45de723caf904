#include "view/acts/SpellingEntries.h"

#include <algorithm>

namespace lumenote {

namespace {

using Act = SpellingEntry::Act;

constexpr std::size_t kMostSuggestions = 8;

std::vector<SpellingEntry> Each(const std::vector<std::u16string>& suggestions, Act act) {
  std::vector<SpellingEntry> entries;
  entries.reserve(suggestions.size());
  for (const std::u16string& right : suggestions)
    entries.push_back({.act = act, .caption = right, .right = right});
  return entries;
}

std::vector<SpellingEntry> Mending(const std::vector<std::u16string>& suggestions) {
  if (suggestions.empty()) return {{.caption = u"Aucune proposition"}};
  std::vector<SpellingEntry> entries = Each(suggestions, Act::Mend);
  entries.push_back({.caption = u"&Apprendre la correction",
                     .startsPart = true,
                     .entries = Each(suggestions, Act::MendAndLearn)});
  return entries;
}

}  // namespace

std::vector<SpellingEntry> SpellingEntries(std::vector<std::u16string> suggestions, bool locked) {
  suggestions.resize(std::min(suggestions.size(), kMostSuggestions));
  std::vector<SpellingEntry> entries;
  if (!locked) entries = Mending(suggestions);
  entries.push_back({.act = Act::AddWord,
                     .caption = u"Ajouter au &dictionnaire",
                     .startsPart = !entries.empty()});
  entries.push_back({.act = Act::OpenNoteMenu, .caption = u"&Menu de la note", .startsPart = true});
  return entries;
}

}  // namespace lumenote
