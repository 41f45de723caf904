#include "document/kept/SourceGroups.h"

#include "document/kept/SourceTokens.h"

namespace lumenote {

std::vector<SourceGroup> GroupsOf(std::string_view source) {
  using Kind = SourceToken::Kind;
  std::vector<SourceGroup> groups;
  std::size_t start = 0;
  int depth = 0;
  bool opened = false;
  SourceTokens tokens(source);
  while (const auto token = tokens.Next()) {
    const std::size_t at = source.size() - tokens.Left();
    if (token->kind == Kind::Open && depth++ == 0) {
      groups.push_back({});
      start = at - 1;
      opened = true;
      continue;
    }
    if (depth == 1 && opened && token->kind == Kind::Word) groups.back().word = token->word;
    opened = false;
    if (token->kind == Kind::Close && --depth == 0)
      groups.back().source = source.substr(start, at - start);
  }
  return groups;
}

std::string_view InsideOf(std::string_view group) {
  return group.size() < 2 ? std::string_view() : group.substr(1, group.size() - 2);
}

}  // namespace lumenote
