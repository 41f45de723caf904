#include "html/write/HtmlTable.h"

#include <algorithm>
#include <map>
#include <utility>

#include "document/kept/RowSource.h"

namespace lumenote {
namespace {

using Merge = RowCell::Merge;
using Part = std::span<const CellParagraph>;

/// The last definition of a row among the items at its end; null if there is none.
const KeptItem* DefinitionOf(const CellParagraph& end, const FormatTables& tables) {
  const KeptItem* definition = nullptr;
  const Kept& kept = tables.kept[tables.characters[end.ender].kept];
  tables.items.ForEach(kept.self, [&](const KeptItem& item) {
    if (item.kind == KeptItem::Kind::Row) definition = &item;
  });
  return definition;
}

/// Splits behind each paragraph that ends a part.
template <class Ends>
std::vector<Part> Split(Part part, Ends ends) {
  std::vector<Part> parts;
  while (!part.empty()) {
    const auto end = std::ranges::find_if(part, ends);
    const auto count = static_cast<std::size_t>(end - part.begin()) + (end == part.end() ? 0 : 1);
    parts.push_back(part.first(count));
    part = part.subspan(count);
  }
  return parts;
}

/// Of cells whose row states none.
std::vector<std::int32_t> EqualEdges(std::size_t cells) {
  constexpr std::size_t kTextWidth = 9000;  // twips
  std::vector<std::int32_t> edges;
  for (std::size_t i = 1; i <= cells; ++i)
    edges.push_back(static_cast<std::int32_t>(kTextWidth * i / cells));
  return edges;
}

/// Each cell is at least one twip wide.
std::vector<std::int32_t> Rising(std::vector<std::int32_t> edges) {
  constexpr std::int32_t kWidest = 1'000'000;  // twips
  std::int32_t left = 0;
  for (std::int32_t& edge : edges) left = edge = std::max(std::min(edge, kWidest), left + 1);
  return edges;
}

/// Builds the rows from the top.
class TableFinder {
 public:
  TableFinder(int level, const FormatTables& tables) : level_(level), tables_(tables) {}

  void Row(Part row);
  HtmlTable Finish();

 private:
  using Edges = std::pair<std::int32_t, std::int32_t>;
  struct Place {
    std::size_t row, cell;
  };
  using Places = std::map<Edges, Place>;

  void Merge(const std::vector<std::int32_t>& edges, std::string_view definition);
  std::int32_t Left(std::size_t row, std::size_t cell) const {
    return cell > 0 ? edges_[row][cell - 1] : 0;
  }
  void CountColumns();

  int level_;
  const FormatTables& tables_;
  HtmlTable table_;
  std::vector<std::vector<std::int32_t>> edges_;  // of each row's cells
  Places spanning_;                               // cells that may go on in the next row
};

void TableFinder::Row(Part row) {
  std::vector<HtmlCell> cells;
  const auto ends = [this](const CellParagraph& one) {
    return one.level == level_ && (one.endsCell || one.endsRow);
  };
  for (const Part content : Split(row, ends)) cells.push_back({.content = content});
  const KeptItem* const definition = DefinitionOf(row.back(), tables_);
  const bool stated = definition && definition->cells.size() == cells.size();
  if (table_.rows.empty()) table_.borders = definition && HasBorders(definition->source);
  table_.rows.push_back(std::move(cells));
  edges_.push_back(Rising(stated ? definition->cells : EqualEdges(table_.rows.back().size())));
  if (stated)
    Merge(edges_.back(), definition->source);
  else
    spanning_.clear();
}

/// A cell that goes on from the one above, with the same edges and without content, makes that one
/// higher.
void TableFinder::Merge(const std::vector<std::int32_t>& edges, std::string_view definition) {
  const std::vector<RowCell::Merge> merges = MergesIn(definition);
  const std::size_t row = table_.rows.size() - 1;
  Places spanning;
  for (std::size_t i = 0; i < edges.size() && i < merges.size(); ++i) {
    HtmlCell& cell = table_.rows[row][i];
    const Edges sides = {Left(row, i), edges[i]};
    if (merges[i] == Merge::Begins) spanning[sides] = {row, i};
    const auto above = spanning_.find(sides);
    const bool empty = cell.content.size() == 1 && cell.content[0].start == cell.content[0].end;
    if (merges[i] != Merge::GoesOn || above == spanning_.end() || !empty) continue;
    cell.covered = true;
    ++table_.rows[above->second.row][above->second.cell].rows;
    spanning.insert(*above);
  }
  spanning_ = std::move(spanning);
}

/// The columns are those between all edges of the table.
void TableFinder::CountColumns() {
  std::vector<std::int32_t> all = {0};
  for (const auto& row : edges_) all.insert(all.end(), row.begin(), row.end());
  std::ranges::sort(all);
  all.erase(std::unique(all.begin(), all.end()), all.end());
  const auto at = [&](std::int32_t edge) { return std::ranges::lower_bound(all, edge); };
  for (std::size_t row = 0; row < edges_.size(); ++row)
    for (std::size_t cell = 0; cell < edges_[row].size(); ++cell) {
      const auto columns = at(edges_[row][cell]) - at(Left(row, cell));
      table_.rows[row][cell].columns = static_cast<int>(columns);
    }
}

HtmlTable TableFinder::Finish() {
  for (std::size_t row = 0; row < edges_.size(); ++row)
    for (std::size_t cell = 0; cell < edges_[row].size(); ++cell)
      table_.rows[row][cell].width = edges_[row][cell] - Left(row, cell);
  CountColumns();
  return std::move(table_);
}

}  // namespace

HtmlTable FindHtmlTable(Part part, int level, const FormatTables& tables) {
  TableFinder finder(level, tables);
  const auto ends = [=](const CellParagraph& one) { return one.level == level && one.endsRow; };
  for (const Part row : Split(part, ends)) finder.Row(row);
  return finder.Finish();
}

}  // namespace lumenote
