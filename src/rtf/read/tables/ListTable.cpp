// Reads \listtable and \listoverridetable.
#include "rtf/read/tables/ListTable.h"

namespace lumenote {
namespace {

constexpr int kLevels = 9;
constexpr int kBulletKind = 23;  // \levelnfc

}  // namespace

void ListTable::ReadLists(Tokenizer& tokens) {
  std::uint32_t bullets = 0;
  int level = -1;
  tokens.ForEachInGroup([&](const Token& token) {
    if (token.kind != Token::Kind::Word) return;
    if (token.text == "list") {
      bullets = 0;
      level = -1;
    } else if (token.text == "listlevel" && level < kLevels) {
      ++level;
    } else if (token.text == "levelnfc" || token.text == "levelnfcn") {
      if (token.number == kBulletKind && level >= 0 && level < kLevels) bullets |= 1u << level;
    } else if (token.text == "listid") {
      bullets_[token.number] = bullets;
    }
  });
}

void ListTable::ReadOverrides(Tokenizer& tokens) {
  int id = 0;
  tokens.ForEachInGroup([&](const Token& token) {
    if (token.kind != Token::Kind::Word) return;
    if (token.text == "listid") id = token.number;
    if (token.text == "ls") ids_[token.number] = id;
  });
}

bool ListTable::IsBullet(int number, int level) const {
  const auto id = ids_.find(number);
  if (id == ids_.end() || level < 0 || level >= kLevels) return false;
  const auto bullets = bullets_.find(id->second);
  return bullets != bullets_.end() && (bullets->second >> level & 1) != 0;
}

}  // namespace lumenote
