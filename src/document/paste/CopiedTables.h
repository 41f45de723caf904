// The styles and lists that a part of a note refers to.
#pragma once
#include <string>
#include <unordered_set>

#include "document/FormatTables.h"
#include "document/lists/ListDefinitions.h"
#include "document/paste/ListMerge.h"
#include "document/paste/StyleMerge.h"

namespace lumenote {

/// Collects the entries of the note's tables that the formats of a text name, under their own
/// numbers, and those that these name in turn.
class CopiedTables {
 public:
  /// The tables outlive this object and may grow meanwhile.
  CopiedTables(const FormatTables& tables, HeadId head);

  void UseCharacter(CharId format);
  void UseParagraph(ParaId format);

  /// Whether readers of the groups will see the paragraph's list as it is; call after `Groups`.
  bool HasList(const ParaFormat& format) const;
  /// The groups to write in the head; call once, after all uses.
  std::string Groups();

 private:
  void UseWords(WordsId words);
  void UseItems(ItemId items);
  void UseField(FieldId field);
  void UseSource(std::string_view source) { WithNumbers(source, map_); }
  int Use(HeadTable table, int number);

  const FormatTables& tables_;
  const std::string source_;
  StyleMerge styleMerge_{source_, {}};
  ListMerge listMerge_{source_, {}};
  NumberMap map_{[this](HeadTable table, int number) { return Use(table, number); }};
  ListDefinitions written_;
  // What has been used.
  std::unordered_set<CharId> characters_;
  std::unordered_set<ParaId> paragraphs_;
  std::unordered_set<WordsId> words_;
  std::unordered_set<ItemId> items_;
  std::unordered_set<FieldId> fields_;
};

}  // namespace lumenote
