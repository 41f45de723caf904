#include "document/Bookmarks.h"

#include <string>

#include "base/Characters.h"
#include "base/Strings.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

/// Whether a bookmark of that name, in small letters, begins in the item. Groups without text
/// between them may be one item; one of table cells tells its columns before its name.
bool Begins(const KeptItem& item, std::u16string_view wanted) {
  if (item.kind != KeptItem::Kind::Bookmark) return false;
  std::u16string name;
  bool begins = false;
  SourceTokens tokens(item.source);
  for (auto token = tokens.Next(); token; token = tokens.Next()) {
    if (token->kind == SourceToken::Kind::Close && begins && Lower(name) == wanted) return true;
    if (token->kind == SourceToken::Kind::Word && !token->word.starts_with("bkmkcol"))
      begins = token->word == "bkmkstart";
    if (token->kind == SourceToken::Kind::Character)
      name += token->character;
    else
      name.clear();
  }
  return begins && Lower(name) == wanted;
}

}  // namespace

std::optional<Position> FindBookmark(const Document& document, std::u16string_view name) {
  const std::u16string wanted = Lower(name);
  const FormatTables& tables = document.Formats();
  const auto isIn = [&](CharId format) {
    const Kept& kept = tables.kept[tables.characters[format].kept];
    return tables.items.Any(kept.before,
                            [&](const KeptItem& item) { return Begins(item, wanted); });
  };
  std::optional<Position> found;
  if (wanted.empty()) return found;
  document.ForEachRun(0, document.Length(), [&](Position start, const TextView&, CharId format) {
    if (!found && isIn(format)) found = start;
  });
  return found || !isIn(document.Mark().character) ? found : document.Length();
}

}  // namespace lumenote
