#include "document/paste/PastedText.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "document/paste/HeadMerge.h"

namespace lumenote {
namespace {

/// Remembers what a function has made of each number.
class Memo {
 public:
  template <class Map>
  std::uint32_t operator()(std::uint32_t number, Map map) {
    if (number == 0) return 0;
    const auto known = known_.find(number);
    if (known != known_.end()) return known->second;
    return known_[number] = map();
  }

 private:
  std::unordered_map<std::uint32_t, std::uint32_t> known_;
};

class PastedFormats {
 public:
  PastedFormats(FormatTables& tables, HeadMerge& head) : tables_(tables), head_(head) {}

  CharId Character(CharId id) {
    return characters_(id, [&] {
      CharFormat format = tables_.characters[id];
      format.words = Words(format.words);
      format.kept = OfKept(format.kept);
      return tables_.characters.Intern(format);
    });
  }
  ParaId Paragraph(ParaId id) {
    return paragraphs_(id, [&] {
      ParaFormat format = tables_.paragraphs[id];
      format.words = Words(format.words);
      if (format.list != 0) MapList(format);
      return tables_.paragraphs.Intern(format);
    });
  }

 private:
  void MapList(ParaFormat& format) {
    const auto list = head_.Map(HeadTable::Overrides, format.list - 1);
    if (!list || *list < 0) format.level = 0;
    format.list = list && *list >= 0 ? static_cast<std::uint16_t>(*list + 1) : 0;
  }
  WordsId Words(WordsId id) {
    return words_(id, [&] {
      std::vector<KeptWord> words = tables_.words.List(id);
      std::erase_if(words, [this](KeptWord& word) { return !Word(word); });
      return tables_.words.Chain(std::move(words));
    });
  }
  /// Whether the word means anything in the note.
  bool Word(KeptWord& word) {
    if (word.kind == KeptWord::Kind::Numbering)
      word.name = tables_.names.Intern(head_.Mapped(tables_.names[word.name]));
    if (word.kind > KeptWord::Kind::Numbered) return true;
    const auto table = TableNamedBy(tables_.names[word.name]);
    if (!table) return true;
    const auto number = head_.Map(*table, word.number);
    if (!number) return false;
    if (*number != word.number) word.kind = KeptWord::Kind::Numbered;
    word.number = *number;
    return true;
  }
  KeptId OfKept(KeptId id) {
    return kept_(id, [&] {
      Kept kept = tables_.kept[id];
      kept.before = Items(kept.before);
      kept.self = Items(kept.self);
      kept.field = Field(kept.field);
      if (kept.kind == Kept::Kind::Cell) kept.paragraph = Paragraph(kept.paragraph);
      return tables_.kept.Intern(kept);
    });
  }
  ItemId Items(ItemId id) {
    return items_(id, [&] {
      KeptItems items = tables_.items.List(id);
      for (KeptItem& item : items) item.source = head_.Mapped(item.source);
      return tables_.items.Chain(std::move(items));
    });
  }
  FieldId Field(FieldId id) {
    return fields_(id, [&] {
      KeptField field = tables_.fields[id];
      field.opening = head_.Mapped(field.opening);
      field.outer = Field(field.outer);
      return tables_.fields.Intern(std::move(field));
    });
  }

  FormatTables& tables_;
  HeadMerge& head_;
  Memo characters_, paragraphs_, words_, kept_, items_, fields_;
};

}  // namespace

Fragment WithTablesOf(const FinalMark& mark, const Fragment& text, const KeptHead& from,
                      std::string_view source, FormatTables& tables) {
  HeadMerge head(from, source, tables, mark.head);
  PastedFormats formats(tables, head);
  std::vector<ParaId> marks;
  text.leaves.ForEachMark(0, text.leaves.Breaks(),
                          [&](ParaId id) { marks.push_back(formats.Paragraph(id)); });
  const ParaId* next = marks.data();
  FragmentBuilder builder;
  text.leaves.ForEachRun(0, text.Length(), [&](Position, TextView run, CharId format) {
    next = builder.Append(run, formats.Character(format), next);
  });
  Fragment pasted = builder.Finish();
  FinalMark grown = mark;
  grown.head = head.Finish();
  if (grown != mark) pasted.mark = grown;
  return pasted;
}

}  // namespace lumenote
