#include "document/BorderSource.h"

#include <algorithm>
#include <utility>

#include "document/kept/SourceTokens.h"

namespace lumenote {

namespace {

using Style = BorderLine::Style;

constexpr int kWidest = 255;    // twips
constexpr int kFarthest = 620;  // twips
constexpr int kWholeArea = 10'000;

/// One word of a border's description.
struct BorderWord {
  std::string_view name;
  int number = 0;
};

struct StyleRow {
  std::string_view name;
  Style style;
};
constexpr StyleRow kStyles[] = {
    {"brdrnone", Style::None},     {"brdrnil", Style::None},      {"brdrtbl", Style::None},
    {"brdrdb", Style::Double},     {"brdrtriple", Style::Double}, {"brdrdot", Style::Dotted},
    {"brdrdash", Style::Dashed},   {"brdrdashsm", Style::Dashed}, {"brdrdashd", Style::Dashed},
    {"brdrdashdd", Style::Dashed}, {"brdrwavydb", Style::Double}};

/// Reads the lines of borders: a word that names sides, then words about their lines.
class BorderReader {
 public:
  /// `prefix` begins the words that name sides.
  explicit BorderReader(std::string_view prefix) : prefix_(prefix) {}

  void Take(Borders& borders, const BorderWord& word);
  /// What follows is about no side.
  void Leave() { sides_ = 0; }

 private:
  bool Names(std::string_view word);

  std::string_view prefix_;
  unsigned sides_ = 0;  // bits of those that the next words are about
};

/// The bits of the sides that a word names behind its prefix.
unsigned SidesOf(std::string_view name) {
  if (name == "t") return 1 << Borders::Top;
  if (name == "l") return 1 << Borders::Left;
  if (name == "b") return 1 << Borders::Bottom;
  if (name == "r") return 1 << Borders::Right;
  return name == "btw" ? 1 << Borders::Between : 0;
}

bool BorderReader::Names(std::string_view word) {
  if (word == "box") return sides_ = 0b1111, true;
  if (word == "brdrbar") return sides_ = 0, true;
  const unsigned sides = word.starts_with(prefix_) ? SidesOf(word.substr(prefix_.size())) : 0;
  if (sides != 0) sides_ = sides;
  return sides != 0;
}

void SetLine(BorderLine& line, const BorderWord& word) {
  if (word.name == "brdrw") {
    line.width = std::clamp(word.number, 1, kWidest);
  } else if (word.name == "brsp") {
    line.space = std::clamp(word.number, 0, kFarthest);
  } else if (word.name == "brdrcf") {
    line.colour = word.number;
  } else {
    const auto* style = std::ranges::find(kStyles, word.name, &StyleRow::name);
    line.style = style == std::end(kStyles) ? Style::Single : style->style;
  }
}

void BorderReader::Take(Borders& borders, const BorderWord& word) {
  if (Names(word.name) || !(word.name.starts_with("brdr") || word.name == "brsp")) return;
  for (std::size_t side = 0; side < borders.sides.size(); ++side)
    if (sides_ >> side & 1) SetLine(borders.sides[side], word);
}

/// The words of shading begin with "cl" in cells.
bool TakeShading(Shading& shading, const BorderWord& word) {
  if (word.name == "cbpat" || word.name == "clcbpat")
    shading.ground = word.number;
  else if (word.name == "cfpat" || word.name == "clcfpat")
    shading.pattern = word.number;
  else if (word.name == "shading" || word.name == "clshdng")
    shading.share = std::clamp(word.number, 0, kWholeArea);
  else
    return false;
  return true;
}

/// Reads the definition of a row.
class RowReader {
 public:
  void Take(const BorderWord& word);
  RowFrame frame;

 private:
  BorderReader reader_{"clbrdr"};
  Borders cell_;
};

void RowReader::Take(const BorderWord& word) {
  if (word.name == "trhdr") frame.heads = true;
  if (word.name == "trleft") frame.left = word.number;
  if (word.name == "trgaph") frame.gap = std::max(word.number, 0);
  if (word.name == "cellx") frame.cells.push_back(std::exchange(cell_, {}));
  if (word.name == "cellx" || word.name.starts_with("trbrdr")) reader_.Leave();
  if (!TakeShading(cell_.shading, word)) reader_.Take(cell_, word);
}

}  // namespace

bool Borders::AreLined() const {
  return std::ranges::any_of(sides,
                             [](const BorderLine& line) { return line.style != Style::None; });
}

bool RowFrame::IsLined() const { return std::ranges::any_of(cells, &Borders::AreLined); }

Borders ParagraphBorders(const FormatTables& tables, WordsId words) {
  Borders borders;
  BorderReader reader("brdr");
  tables.words.ForEach(words, [&](const KeptWord& word) {
    const BorderWord said{tables.names[word.name], word.number};
    if (!TakeShading(borders.shading, said)) reader.Take(borders, said);
  });
  return borders;
}

RowFrame RowFrameOf(const FormatTables& tables, ItemId items) {
  RowReader reader;
  tables.items.ForEach(items, [&](const KeptItem& item) {
    if (item.kind == KeptItem::Kind::Row) reader = {};
    if (item.kind != KeptItem::Kind::Row && item.kind != KeptItem::Kind::Words) return;
    SourceTokens tokens(item.source);
    while (const auto token = tokens.Next())
      if (token->kind == SourceToken::Kind::Word) reader.Take({token->word, token->number});
  });
  return std::move(reader.frame);
}

Colour ColourOf(const KeptHead& head, int number, Colour other) {
  if (number < 0 || number >= std::ssize(head.colours)) return other;
  const Colour colour = head.colours[static_cast<std::size_t>(number)];
  return colour == kAutoColour ? other : colour;
}

}  // namespace lumenote
