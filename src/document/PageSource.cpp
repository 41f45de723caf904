#include "document/PageSource.h"

#include <algorithm>
#include <string_view>

#include "document/kept/SourceTokens.h"

namespace lumenote {

namespace {

constexpr int kLeastText = 1440;  // twips
constexpr int kLargest = 31680;   // the largest page that there is
constexpr int kMostMargin = 15840;

struct LengthWord {
  std::string_view name;
  int Paper::*length;
  int least;
  int most;
};
constexpr LengthWord kLengthWords[] = {{"paperw", &Paper::width, kLeastText, kLargest},
                                       {"paperh", &Paper::height, kLeastText, kLargest},
                                       {"margl", &Paper::left, 0, kMostMargin},
                                       {"margr", &Paper::right, 0, kMostMargin},
                                       {"margt", &Paper::top, 0, kMostMargin},
                                       {"margb", &Paper::bottom, 0, kMostMargin}};

/// A negative top or bottom margin has the same size, but never gives way to headers.
void Take(Paper& paper, const SourceToken& token) {
  const auto* word = std::ranges::find(kLengthWords, token.word, &LengthWord::name);
  if (word == std::end(kLengthWords) || !token.hasNumber) return;
  const int number = std::clamp(token.number, -kLargest, kLargest);
  paper.*word->length = std::clamp(number < 0 ? -number : number, word->least, word->most);
}

template <class Visit>
void ForEachWord(std::string_view source, Visit visit) {
  SourceTokens tokens(source);
  int depth = 0;
  while (const auto token = tokens.Next()) {
    if (token->kind == SourceToken::Kind::Open) ++depth;
    if (token->kind == SourceToken::Kind::Close) --depth;
    if (token->kind == SourceToken::Kind::Word && depth == 0) visit(*token);
  }
}

const Kept& KeptAt(const Document& document, Position position) {
  const FormatTables& tables = document.Formats();
  return tables.kept[tables.characters[document.CharFormatAt(position)].kept];
}

/// Whether the section that begins at `position` continues the page.
bool GoesOn(const Document& document, Position position) {
  bool goesOn = false;
  const FormatTables& tables = document.Formats();
  tables.items.ForEach(KeptAt(document, position).before, [&](const KeptItem& item) {
    if (item.kind != KeptItem::Kind::Section && item.kind != KeptItem::Kind::Words) return;
    ForEachWord(item.source,
                [&](const SourceToken& token) { goesOn = goesOn || token.word == "sbknone"; });
  });
  return goesOn;
}

}  // namespace

void Paper::MakeRoom() {
  if (TextWidth() < kLeastText) left = right = std::min(kMargin, width / 8);
  if (TextHeight() < kLeastText) top = bottom = std::min(kMargin, height / 8);
}

Paper PaperOf(const Document& document) {
  Paper paper;
  const FormatTables& tables = document.Formats();
  tables.items.ForEach(tables.heads[document.Mark().head].items, [&](const KeptItem& item) {
    ForEachWord(item.source, [&](const SourceToken& token) { Take(paper, token); });
  });
  paper.MakeRoom();
  return paper;
}

PageWishes PageWishesOf(const FormatTables& tables, const ParaFormat& paragraph) {
  PageWishes wishes;
  tables.words.ForEach(paragraph.words, [&](const KeptWord& word) {
    const std::string_view name = tables.names[word.name];
    const bool on = word.kind != KeptWord::Kind::Numbered || word.number != 0;
    if (name == "pagebb") wishes.newPage = on;
    if (name == "keep") wishes.together = on;
    if (name == "keepn") wishes.withNext = on;
    if (name == "nowidctlpar") wishes.loneLines = on;
  });
  return wishes;
}

bool BeginsPage(const Document& document, Position position) {
  bool begins = false;
  document.Formats().items.ForEach(KeptAt(document, position).before, [&](const KeptItem& item) {
    begins = begins || item.kind == KeptItem::Kind::PageBreak ||
             (item.kind == KeptItem::Kind::SectionBreak && !GoesOn(document, position));
  });
  return begins;
}

bool EndsPage(const Document& document, Position position) {
  const Position end = document.ParagraphEnd(document.ParagraphOf(position));
  const Kept& kept = KeptAt(document, end);
  if (kept.kind != Kept::Kind::Break) return false;
  const KeptItem& item = document.Formats().items[kept.self];
  if (item.kind == KeptItem::Kind::SectionBreak) return !GoesOn(document, end + 2);
  return item.kind == KeptItem::Kind::PageBreak;
}

}  // namespace lumenote
