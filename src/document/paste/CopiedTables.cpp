#include "document/paste/CopiedTables.h"

#include "document/paste/HeadMerge.h"

namespace lumenote {

CopiedTables::CopiedTables(const FormatTables& tables, HeadId head)
    : tables_(tables), source_(HeadSource(tables.items.List(tables.heads[head].items))) {}

void CopiedTables::UseCharacter(CharId id) {
  if (!characters_.insert(id).second) return;
  const CharFormat& format = tables_.characters[id];
  UseWords(format.words);
  const Kept& kept = tables_.kept[format.kept];
  UseItems(kept.before);
  UseItems(kept.self);
  UseField(kept.field);
  if (kept.kind == Kept::Kind::Cell) UseParagraph(kept.paragraph);
}

void CopiedTables::UseParagraph(ParaId id) {
  if (!paragraphs_.insert(id).second) return;
  const ParaFormat& format = tables_.paragraphs[id];
  UseWords(format.words);
  if (format.list != 0) listMerge_.Map(format.list - 1, map_);
}

void CopiedTables::UseWords(WordsId id) {
  if (!words_.insert(id).second) return;
  tables_.words.ForEach(id, [this](KeptWord word) {
    const std::string& name = tables_.names[word.name];
    if (word.kind == KeptWord::Kind::Numbering) return UseSource(name);
    const auto table = TableNamedBy(name);
    if (word.kind <= KeptWord::Kind::Numbered && table) Use(*table, word.number);
  });
}

void CopiedTables::UseItems(ItemId id) {
  if (!items_.insert(id).second) return;
  tables_.items.ForEach(id, [this](const KeptItem& item) { UseSource(item.source); });
}

void CopiedTables::UseField(FieldId id) {
  for (; id != 0 && fields_.insert(id).second; id = tables_.fields[id].outer)
    UseSource(tables_.fields[id].opening);
}

int CopiedTables::Use(HeadTable table, int number) {
  if (table == HeadTable::Styles) styleMerge_.Map(number);
  if (table == HeadTable::Overrides) listMerge_.Map(number, map_);
  return number;
}

std::string CopiedTables::Groups() {
  std::string styles;
  for (std::string style = styleMerge_.TakeAdded(map_); !style.empty();
       style = styleMerge_.TakeAdded(map_))
    styles += style;
  const auto group = [](std::string_view opening, const std::string& entries) {
    return entries.empty() ? std::string() : std::string(opening) + entries + "}";
  };
  const std::string lists = group("{\\*\\listtable", listMerge_.AddedLists()) +
                            group("{\\*\\listoverridetable", listMerge_.AddedOverrides());
  written_.Read(lists);
  return group("{\\stylesheet", styles) + lists;
}

bool CopiedTables::HasList(const ParaFormat& format) const {
  const int list = format.list - 1;
  return written_.Override(list) && written_.IsBullet(list, format.level) == (format.bullet != 0);
}

}  // namespace lumenote
