#include "document/lists/ListDefinitions.h"

#include <algorithm>
#include <iterator>

#include "document/kept/SourceGroups.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

using Kind = SourceToken::Kind;

constexpr std::size_t kLongest = 64;  // units of text around a number, more than any needs

bool IsReadable(const SourceToken& token, int page) { return page == 1252 || token.byte < 0x80; }

/// Reads the tokens of a level: \listlevel and what follows.
class LevelReader {
 public:
  explicit LevelReader(int page) : page_(page) {}

  /// Text and words go to `level` from now on; null: nowhere.
  void Begin(ListLevel* level) {
    level_ = level;
    if (level_) *level_ = {.form = ListLevel::Form::Unknown};
  }

  void Take(const SourceToken& token) {
    if (token.kind == Kind::Open) ++depth_;
    if (token.kind == Kind::Close && depth_-- == textDepth_) EndText();
    if (token.kind == Kind::Character && ofText_) Text(token);
    if (token.kind == Kind::Word && level_) Word(token);
  }

 private:
  void Word(const SourceToken& token) {
    const bool on = !token.hasNumber || token.number != 0;
    if (token.word == "levelnfc" || token.word == "levelnfcn")
      level_->form = ListFormOf(token.number);
    else if (token.word == "levelstartat")
      level_->start = token.number;
    else if (token.word == "levellegal")
      level_->legal = on;
    else if (token.word == "levelnorestart")
      level_->restarts = !on;
    else if (token.word == "leveltext")
      BeginText();
  }
  void Text(const SourceToken& token) {
    text_ += token.character;
    if (level_ && !IsReadable(token, page_)) level_->readable = false;
  }
  void BeginText() {
    textDepth_ = depth_;
    ofText_ = true;
    text_.clear();
  }
  /// The first character is the count of those that follow.
  void EndText() {
    textDepth_ = 0;
    if (!std::exchange(ofText_, false) || !level_ || text_.empty()) return;
    level_->text = text_.substr(1, std::min<std::size_t>(text_.front(), kLongest));
  }

  int page_;
  ListLevel* level_ = nullptr;
  int depth_ = 0;
  int textDepth_ = 0;  // of the group with the level's text; 0: outside
  bool ofText_ = false;
  std::u16string text_;
};

bool IsBlank(char16_t unit) { return unit == u'\t' || unit == u' ' || unit == u'\u00A0'; }

/// The blank behind a number is not part of it.
void LeaveBlanks(std::u16string& text) {
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
}

struct ListEntry {
  std::optional<int> id{};
  std::vector<ListLevel> levels{};
};

ListEntry ReadList(std::string_view group, int page) {
  ListEntry list;
  LevelReader reader(page);
  SourceTokens tokens(group);
  while (const auto token = tokens.Next()) {
    if (token->word == "listid") list.id = token->number;
    if (token->word == "listlevel")
      reader.Begin(list.levels.size() < kListLevels ? &list.levels.emplace_back() : nullptr);
    reader.Take(*token);
  }
  for (ListLevel& level : list.levels) LeaveBlanks(level.text);
  return list;
}

/// Reads the levels in which an override differs from its list.
class OverrideReader {
 public:
  explicit OverrideReader(int page) : reader_(page) {}

  void Take(const SourceToken& token) {
    if (token.word == "listid") override_.list = token.number;
    if (token.word == "ls") number_ = token.number;
    if (token.word == "lfolevel") BeginLevel();
    if (!override_.levels.empty()) OfLevel(token);
    reader_.Take(token);
  }
  /// The last number that was said.
  std::optional<int> Number() const { return number_; }
  ListOverride TakeResult() {
    for (ListOverride::Level& level : override_.levels)
      if (level.format) LeaveBlanks(level.format->text);
    return std::move(override_);
  }

 private:
  void BeginLevel() {
    const auto number = static_cast<int>(override_.levels.size());
    reader_.Begin(nullptr);
    starts_ = false;
    if (number < kListLevels) override_.levels.push_back({.number = number});
  }
  void OfLevel(const SourceToken& token) {
    ListOverride::Level& level = override_.levels.back();
    if (token.word == "listoverridestartat") starts_ = true;
    if (token.word == "levelstartat" && starts_) level.start = token.number;
    if (token.word == "listlevel") reader_.Begin(&level.format.emplace());
  }

  std::optional<int> number_;
  ListOverride override_;
  LevelReader reader_;
  bool starts_ = false;
};

}  // namespace

void ListDefinitions::Read(std::string_view source) {
  for (const SourceGroup& group : GroupsOf(source)) {
    if (group.word == "listtable") ReadLists(InsideOf(group.source));
    if (group.word == "listoverridetable") ReadOverrides(InsideOf(group.source));
  }
}

void ListDefinitions::ReadLists(std::string_view entries) {
  for (const SourceGroup& group : GroupsOf(entries)) {
    ListEntry list = ReadList(group.source, page_);
    if (list.id) lists_.try_emplace(*list.id, std::move(list.levels));
  }
}

void ListDefinitions::ReadOverrides(std::string_view entries) {
  for (const SourceGroup& group : GroupsOf(entries)) {
    OverrideReader reader(page_);
    SourceTokens tokens(group.source);
    while (const auto token = tokens.Next()) reader.Take(*token);
    if (reader.Number()) overrides_.try_emplace(*reader.Number(), reader.TakeResult());
  }
}

const ListOverride* ListDefinitions::Override(int number) const {
  const auto found = overrides_.find(number);
  return found != overrides_.end() && lists_.contains(found->second.list) ? &found->second
                                                                          : nullptr;
}

bool ListDefinitions::IsBullet(int number, int level) const {
  const ListOverride* override = Override(number);
  if (!override || level < 0 || level >= kListLevels) return false;
  const std::vector<ListLevel>& own = lists_.at(override->list);
  const auto index = static_cast<std::size_t>(level);
  const ListLevel* shown = index < own.size() ? &own[index] : nullptr;
  for (const ListOverride::Level& other : override->levels)
    if (other.number == level && other.format) shown = &*other.format;
  return shown && shown->form == ListLevel::Form::Bullet;
}

ListLevels ListDefinitions::LevelsOf(const ListOverride& override) const {
  const std::vector<ListLevel>& said = lists_.at(override.list);
  ListLevels levels;
  levels.fill({.form = ListLevel::Form::Unknown});
  std::ranges::copy(said, levels.begin());
  for (const ListOverride::Level& level : override.levels) {
    ListLevel& own = levels[static_cast<std::size_t>(level.number)];
    if (level.format) own = *level.format;
    if (level.start) own.start = *level.start;
  }
  return levels;
}

std::optional<ListLevel> NumberingOf(std::string_view group, int page) {
  static constexpr std::pair<std::string_view, ListLevel::Form> kForms[] = {
      {"pndec", ListLevel::Form::Arabic},
      {"pnucrm", ListLevel::Form::UpperRoman},
      {"pnlcrm", ListLevel::Form::LowerRoman},
      {"pnucltr", ListLevel::Form::UpperLetter},
      {"pnlcltr", ListLevel::Form::LowerLetter}};
  ListLevel level{.form = ListLevel::Form::Unknown};
  std::u16string before, behind;
  std::u16string* text = nullptr;
  bool body = false;
  SourceTokens tokens(group);
  while (const auto token = tokens.Next()) {
    if (token->kind == Kind::Character && text) {
      *text += token->character;
      level.readable = level.readable && IsReadable(*token, page);
    }
    if (token->kind == Kind::Close) text = nullptr;
    if (token->word == "pntxtb") text = &before;
    if (token->word == "pntxta") text = &behind;
    if (token->word == "pnlvlbody") body = true;
    if (token->word == "pnstart") level.start = token->number;
    for (const auto& [word, form] : kForms)
      if (token->word == word) level.form = form;
  }
  if (!body || !level.readable || level.form == ListLevel::Form::Unknown) return std::nullopt;
  if (before.size() + behind.size() > kLongest) return std::nullopt;
  level.text = before + u'\0' + behind;
  LeaveBlanks(level.text);
  return level;
}

}  // namespace lumenote
