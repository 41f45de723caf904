#include "document/lists/ListItems.h"

#include <algorithm>
#include <utility>

namespace lumenote {
namespace {

/// Goes through the text front to back.
class ItemScan {
 public:
  ItemScan(const Document& document, NoteLists& lists, const ListKeys& keys)
      : document_(document),
        tables_(document.Formats()),
        lists_(lists),
        counter_(tables_, lists),
        keys_(keys) {
    document.Leaves().ForEachMark(0, document.Leaves().Breaks(),
                                  [this](ParaId mark) { marks_.push_back(mark); });
  }

  ListItems Find() {
    document_.ForEachRun(0, document_.Length(), [this](Position at, TextView text, CharId format) {
      Run(at, text, tables_.kept[tables_.characters[format].kept]);
    });
    EndItem(document_.Length(), 0, document_.Mark().paragraph);
    return std::move(found_);
  }

 private:
  void Run(Position at, TextView text, const Kept& kept) {
    const bool number =
        kept.field != 0 && tables_.fields[kept.field].kind == KeptField::Kind::ListNumber;
    const bool cell = kept.kind == Kept::Kind::Cell;
    for (std::size_t i = 0; i < text.Size();) {
      const std::size_t end = std::min(text.Find('\r', i), cell ? text.Find('\t', i) : text.Size());
      const Position position = at + static_cast<Position>(end);
      if (number && end > i) Number({at + static_cast<Position>(i), position}, kept.field);
      if (end == text.Size()) return;
      const bool ends = text[end] == u'\r';
      const std::size_t length = ends ? 2 : 1;
      EndItem(position, static_cast<Position>(length),
              ends ? marks_[paragraph_++] : kept.paragraph);
      i = end + length;
    }
  }
  /// A part of a number, which is one field.
  void Number(Selection range, FieldId field) {
    const bool begins = number_.Length() == 0 && range.start == number_.start;
    const bool goesOn = field == std::exchange(field_, field);
    if (begins || (goesOn && range.start == number_.end))
      number_.end = range.end;
    else if (goesOn && !found_.stray.empty() && found_.stray.back().end == range.start)
      found_.stray.back().end = range.end;
    else
      found_.stray.push_back(range);
  }
  /// A paragraph or cell ends in `length` units.
  void EndItem(Position end, Position length, ParaId format) {
    std::optional<std::u16string> counted = counter_.Next(format);
    const ListKey key = lists_.KeyOf(format);
    if (keys_.contains(key))
      found_.items.push_back({number_.start, end, number_, format, key, std::move(counted)});
    number_ = {end + length, end + length};
  }

  const Document& document_;
  const FormatTables& tables_;
  NoteLists& lists_;
  ListCounter counter_;
  const ListKeys& keys_;
  std::vector<ParaId> marks_;
  std::size_t paragraph_ = 0;
  Selection number_;   // of the present item, which begins where it does
  FieldId field_ = 0;  // of the last part of a number
  ListItems found_;
};

}  // namespace

ListItems FindListItems(const Document& document, NoteLists& lists, const ListKeys& keys) {
  return ItemScan(document, lists, keys).Find();
}

}  // namespace lumenote
