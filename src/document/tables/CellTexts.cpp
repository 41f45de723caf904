#include "document/tables/CellTexts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "document/tables/TableRow.h"

namespace lumenote {
namespace {

struct Row {
  Position start = 0;
  Position end = 0;  // before its break
  int level = 0;
  int table = 0;  // a number of its own

  bool Holds(Position position) const { return start <= position && position <= end; }
};

/// The rows in the order of their ends, those of tables in cells before the row around them.
std::vector<Row> RowsOf(const std::vector<CellParagraph>& paragraphs) {
  struct Level {
    std::optional<Position> row;
    int table = 0;
  };
  std::array<Level, kDeepestTable + 2> levels{};
  std::vector<Row> rows;
  int tables = 0;
  for (const CellParagraph& paragraph : paragraphs) {
    const auto own = static_cast<std::size_t>(paragraph.level);
    for (std::size_t level = 1; level <= own; ++level) {
      if (!levels[level].row) levels[level].row = paragraph.start;
      if (levels[level].table == 0) levels[level].table = ++tables;
    }
    std::fill(levels.begin() + paragraph.level + 1, levels.end(), Level{});
    if (!paragraph.endsRow) continue;
    rows.push_back({*levels[own].row, paragraph.end, paragraph.level, levels[own].table});
    levels[own].row.reset();
  }
  return rows;
}

/// Which rows go with a range.
class Removal {
 public:
  /// The final row ends where the note does.
  Removal(const std::vector<Row>& rows, Selection range, Remains remains, Position noteEnd)
      : range_(range), remains_(remains), noteEnd_(noteEnd) {
    for (const Row& row : rows) {
      if (row.Holds(range.start)) first_[static_cast<std::size_t>(row.level)] = row;
      if (row.Holds(range.end)) last_[static_cast<std::size_t>(row.level)] = row;
    }
    for (const Row& row : rows)
      if (Includes(row)) Add(row);
  }

  /// The rows of which nothing stays, in order, without those in their cells.
  const std::vector<Row>& Rows() const { return rows_; }

 private:
  Position Behind(const Row& row) const { return std::min(row.end + 2, noteEnd_); }
  bool Includes(const Row& row) const {
    if (row.start < range_.start || Behind(row) > range_.end) return false;
    const Row& first = first_[static_cast<std::size_t>(row.level)];
    const Row& last = last_[static_cast<std::size_t>(row.level)];
    const bool inTable = first.table == row.table && last.table == row.table;
    return !inTable || (remains_ == Remains::Nothing && first.start == range_.start &&
                        (last.start == range_.end || Behind(last) == range_.end));
  }
  void Add(const Row& row) {
    while (!rows_.empty() && rows_.back().start >= row.start) rows_.pop_back();
    rows_.push_back(row);
  }

  using RowOfLevel = std::array<Row, kDeepestTable + 2>;

  const Selection range_;
  const Remains remains_;
  const Position noteEnd_;
  RowOfLevel first_{}, last_{};  // the rows that the range begins and ends in
  std::vector<Row> rows_;
};

/// The paragraph that holds a position.
auto At(const std::vector<CellParagraph>& paragraphs, Position position) {
  return std::prev(std::ranges::upper_bound(paragraphs, position, {}, &CellParagraph::start));
}

/// Cuts a range at the ends of cells and rows that stay.
class PartFinder {
 public:
  PartFinder(const std::vector<CellParagraph>& paragraphs, const std::vector<Row>& removed)
      : paragraphs_(paragraphs), removed_(removed) {}

  std::vector<Selection> Find(Selection range, Remains remains) {
    start_ = range.start;
    for (auto paragraph = At(paragraphs_, start_); paragraph->end < range.end; ++paragraph)
      if ((paragraph->endsCell || paragraph->endsRow) && !IsRemoved(paragraph->end))
        EndAt(paragraph->end, paragraph->endsCell ? 1 : 2, remains);
    EndAt(range.end, 0, remains);
    return std::move(parts_);
  }

 private:
  bool IsRemoved(Position ender) const {
    const auto row = std::ranges::lower_bound(removed_, ender, {}, &Row::end);
    return row != removed_.end() && row->Holds(ender);
  }
  /// Ends a part before what stays, `length` characters of it.
  void EndAt(Position end, Position length, Remains remains) {
    const CellParagraph& first = *At(paragraphs_, start_);
    const bool joins = start_ > first.start || (parts_.empty() && remains == Remains::Text);
    const bool intoTable = At(paragraphs_, end)->level > first.level && !IsRemoved(end);
    if (joins && intoTable) {
      parts_.push_back({start_, first.end});
      start_ = first.end + 2;
    }
    parts_.push_back({start_, end});
    start_ = end + length;
  }

  const std::vector<CellParagraph>& paragraphs_;
  const std::vector<Row>& removed_;
  Position start_ = 0;
  std::vector<Selection> parts_;
};

}  // namespace

CellTexts FindCellTexts(const Document& document, Selection range, Remains remains) {
  if (range.Length() == 0) return {{range}};
  const auto first = RowAround(document, range.start);
  const auto last = RowAround(document, range.end);
  if (!first && !last) return {{range}};
  const Position start = document.ParagraphStart(document.ParagraphOf(range.start));
  const Position end = document.ParagraphEnd(document.ParagraphOf(range.end));
  const Selection around{first ? first->start : start, last ? last->end : end};
  const std::vector<CellParagraph> paragraphs =
      FindCellParagraphs(document, around, LastBreak::Inside);
  const Removal removal(RowsOf(paragraphs), range, remains, document.Length());
  const std::vector<Row>& removed = removal.Rows();
  return {PartFinder(paragraphs, removed).Find(range, remains),
          !removed.empty() && removed.back().end == document.Length()};
}

}  // namespace lumenote
