#include "backends/qt/text/QtLayouter.h"

#include <QTextOption>
#include <QUrl>
#include <algorithm>
#include <cmath>

#include "backends/qt/toolkit/QtText.h"
#include "document/Links.h"
#include "view/layout/InlineBoxes.h"
#include "view/layout/LineStack.h"
#include "view/layout/RowCells.h"
#include "view/layout/ShownText.h"

namespace lumenote {

namespace {

constexpr double kOutOfSight = 1e6;  // pixels; drawing stops at the first line below this
constexpr QChar kNowhere(0xFFFF);    // no character

using FormatRange = QTextLayout::FormatRange;

/// The formats of a text in Qt's terms.
QList<FormatRange> FormatsOf(const ShownText& text, const Document& document, CharStyles& styles) {
  QList<FormatRange> formats;
  for (const ShownPart& part : text.parts) {
    const CharStyle& style = styles.Of(document, part.format);
    formats.push_back(
        {part.start, part.end - part.start, part.reduced ? *style.smallLetter : style.format});
  }
  return formats;
}

/// Adds what makes the stand-ins of boxes invisible and as wide as their boxes.
void AddBoxes(const QtPiece& piece, const Document& document, CharStyles& styles,
              QList<FormatRange>& formats) {
  auto run = piece.runs.begin();
  for (const InlineBox& box : piece.boxes) {
    while (std::next(run) != piece.runs.end() && std::next(run)->start <= box.index) ++run;
    const QTextCharFormat& text = styles.Of(document, run->format).format;
    formats.push_back({box.index, 1, StandInFormat(text, kShownObject, box.size.width)});
  }
}

/// What has an outline is painted as a shape, not as letters that a reader would find.
void HideFromReaders(const QtPiece& piece, QList<FormatRange>& formats) {
  for (const InlineBox& box : piece.boxes) {
    QTextCharFormat shape;
    shape.setTextOutline(QPen(Qt::transparent));
    formats.push_back({box.index, 1, shape});
  }
}

/// Where a link on paper leads: a page or the like, not a file beside the note. Qt writes an
/// address as it stands, between parentheses.
QString PaperAddress(std::u16string_view address) {
  const QUrl target(ToQString(address));
  constexpr int kDrive = 1;  // letters that stand for one
  if (!MayOpen(address) || target.scheme().size() <= kDrive) return {};
  return QString::fromLatin1(target.toEncoded())
      .replace(u'(', QStringLiteral("%28"))
      .replace(u')', QStringLiteral("%29"));
}

void AddLinks(const QtPiece& piece, const Document& document, QList<FormatRange>& formats) {
  const FormatTables& tables = document.Formats();
  const auto length = static_cast<int>(piece.layout.text().size());
  for (auto run = piece.runs.begin(); run != piece.runs.end(); ++run) {
    const QString address = PaperAddress(LinkOf(tables, tables.characters[run->format]));
    if (address.isEmpty()) continue;
    const int end = std::next(run) == piece.runs.end() ? length : std::next(run)->start;
    QTextCharFormat link;
    link.setAnchor(true);
    link.setAnchorHref(address);
    formats.push_back({run->start, end - run->start, link});
  }
}

/// Qt counts line breaks into the lines of a text from right to left.
void AddLineBreaks(const QtPiece& piece, const Document& document, CharStyles& styles,
                   QList<FormatRange>& formats) {
  const QString text = piece.layout.text();
  auto run = piece.runs.begin();
  for (qsizetype at = -1; (at = text.indexOf(QChar(kShownLineBreak), at + 1)) >= 0;) {
    const int index = static_cast<int>(at);
    while (std::next(run) != piece.runs.end() && std::next(run)->start <= index) ++run;
    const QTextCharFormat& look = styles.Of(document, run->format).format;
    formats.push_back({index, 1, StandInFormat(look, kShownLineBreak, 0)});
  }
}

/// Breaks the text of a piece into lines.
class LineMaker {
 public:
  LineMaker(const TextLayouter& layouter, const Document& document, QtPiece& piece,
            const RowCells& row, bool tabs)
      : layouter_(layouter),
        tables_(document.Formats()),
        piece_(piece),
        row_(row),
        stack_(layouter, document, piece, row),
        rightToLeft_(stack_.Format().rightToLeft != 0),
        tabStep_(tabs ? layouter.Pixels(kDefaultTabStep) : 0) {
    FindTabs();
  }

  /// Returns false if an incomplete span gave no whole line.
  bool Build(const PieceSpan& span);
  /// Lays out a row; `ends` are those of its texts in the piece's text.
  void BuildRow(const std::vector<int>& ends);

 private:
  void FindTabs();
  QTextOption Option(double lineX) const;
  bool AddLines(const PieceSpan& span);
  double WidthOf(const QTextLine& line, const PieceLine& box) const;
  double Shift(const QTextLine& line, const PieceLine& box) const;
  void AddText(int start, int end, bool last);
  void Justify(const QTextLine& line);
  void Place(QTextLine line, PieceLine& box);

  const TextLayouter& layouter_;
  const FormatTables& tables_;
  QtPiece& piece_;
  const RowCells& row_;
  LineStack stack_;
  const bool rightToLeft_;  // the layout, as its first paragraph
  std::vector<PixelTab> tabs_;
  double tabStep_;
};

void LineMaker::FindTabs() {
  if (tabStep_ > 0) tabs_ = TabsOf(layouter_, tables_.tabs[stack_.Format().tabs], stack_.Edges());
}

// Qt measures all text behind a left tab, for nothing. A tab whose delimiter never comes is the
// same.
QTextOption::Tab TabAt(double x, TabKind kind) {
  switch (kind) {
    case TabKind::Right:
      return {x, QTextOption::RightTab};
    case TabKind::Centre:
      return {x, QTextOption::CenterTab};
    case TabKind::Decimal:
      return {x, QTextOption::DelimiterTab, u','};
    case TabKind::Left:
    case TabKind::Bar:
      break;
  }
  return {x, QTextOption::DelimiterTab, kNowhere};
}

// Qt measures tab stops from the line's start, the document from the left edge; it sets lines where
// they begin, since blanks at their end move what it aligns.
QTextOption LineMaker::Option(double lineX) const {
  const ParaFormat& format = stack_.Format();
  const bool justified = row_.Empty() && format.alignment == Alignment::Justify;
  QTextOption option(justified ? Qt::AlignJustify : rightToLeft_ ? Qt::AlignRight : Qt::AlignLeft);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTextDirection(rightToLeft_ ? Qt::RightToLeft : Qt::LeftToRight);
  if (tabStep_ == 0) return option;
  QList<QTextOption::Tab> tabs;
  for (const PixelTab& tab : tabs_)
    if (tab.x > lineX) tabs.push_back(TabAt(tab.x - lineX, tab.kind));
  option.setTabStopDistance(tabStep_);
  option.setTabs(tabs);
  return option;
}

bool LineMaker::AddLines(const PieceSpan& span) {
  QTextLayout& layout = piece_.layout;
  const LineEdges& edges = stack_.Edges();
  const int known = span.nextKnown < 0 ? -1 : piece_.ToIndex(span.nextKnown);
  double x = edges.Left(piece_.opens);
  layout.setTextOption(Option(x));
  for (;;) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) return true;
    const double width = edges.Room(x);
    line.setLineWidth(width);
    line.setPosition({stack_.Format().rightToLeft ? edges.right - x - width : x, 0});
    const int end = line.textStart() + line.textLength();
    piece_.lines.push_back({.start = line.textStart(), .end = end});
    if (end == known) return false;
    if (x != edges.following) layout.setTextOption(Option(x = edges.following));
  }
}

bool LineMaker::Build(const PieceSpan& span) {
  piece_.layout.beginLayout();
  const bool reachedEnd = AddLines(span);
  piece_.layout.endLayout();
  if (reachedEnd && !span.complete) {
    QTextLine cut = piece_.layout.lineAt(piece_.layout.lineCount() - 1);
    cut.setPosition({0, kOutOfSight});
    piece_.lines.pop_back();
  }
  // Qt starts another line after every line break, even if the paragraph goes on.
  if (!piece_.closes && piece_.lines.size() > 1 &&
      piece_.lines.back().start == piece_.lines.back().end)
    piece_.lines.pop_back();
  if (piece_.lines.empty()) return false;
  piece_.to = piece_.ToPosition(piece_.lines.back().end);
  piece_.closes = piece_.closes && piece_.to == span.to;
  for (std::size_t i = 0; i < piece_.lines.size(); ++i)
    Place(piece_.layout.lineAt(static_cast<int>(i)), piece_.lines[i]);
  stack_.Finish(Utf16(piece_.layout.text()));
  return true;
}

/// The width of a line but for the blanks that hang at its end. Where Qt wraps a line, it leaves
/// them out itself, wherever the directions of the text put them.
double LineMaker::WidthOf(const QTextLine& line, const PieceLine& box) const {
  const QString text = piece_.layout.text();
  const bool broken = box.end > box.start && text[box.end - 1] == QChar(kShownLineBreak);
  if (!broken && box.end < text.size()) return line.naturalTextWidth();
  const double end = line.cursorToX(FirstHanging(Utf16(text), box.start, box.end)) - line.x();
  return rightToLeft_ ? line.width() - end : end;
}

/// How far a line moves to its place between the edges. Text in a cell may have another direction
/// than the whole layout.
double LineMaker::Shift(const QTextLine& line, const PieceLine& box) const {
  const ParaFormat& format = stack_.Format();
  const double before = FreeRoomBefore(format);
  const double atLeft = format.rightToLeft ? 1 - before : before;
  const double share = rightToLeft_ ? atLeft - 1 : atLeft;
  return share == 0 ? 0 : share * std::max(0.0, line.width() - WidthOf(line, box));
}

void LineMaker::BuildRow(const std::vector<int>& ends) {
  piece_.layout.beginLayout();
  int start = 0;
  for (std::size_t i = 0; i < ends.size(); start = ends[i++]) {
    stack_.Begin(row_.texts[i]);
    AddText(start, ends[i], i + 1 == ends.size());
  }
  piece_.layout.endLayout();
  stack_.Finish(Utf16(piece_.layout.text()));
}

// But for the last one, a text ends with a line break; behind one of its own Qt adds a line.
void LineMaker::AddText(int start, int end, bool last) {
  QTextLayout& layout = piece_.layout;
  const LineEdges& edges = stack_.Edges();
  FindTabs();
  for (int from = start; from < end || last;) {
    const double x = edges.Left(from == start);
    layout.setTextOption(Option(x));
    QTextLine line = layout.createLine();
    if (!line.isValid()) return;
    const double width = edges.Room(x);
    line.setLineWidth(width);
    line.setPosition(
        {stack_.Left() + (stack_.Format().rightToLeft ? edges.right - x - width : x), 0});
    from = line.textStart() + line.textLength();
    piece_.lines.push_back({.start = line.textStart(), .end = from});
    Place(line, piece_.lines.back());
  }
}

// Qt aligns all lines of a layout alike, but for those that are justified already.
void LineMaker::Justify(const QTextLine& line) {
  QTextOption option = piece_.layout.textOption();
  option.setAlignment(Qt::AlignJustify);
  piece_.layout.setTextOption(option);
  line.cursorToX(line.textStart());
  option.setAlignment(rightToLeft_ ? Qt::AlignRight : Qt::AlignLeft);
  piece_.layout.setTextOption(option);
}

void LineMaker::Place(QTextLine line, PieceLine& box) {
  double ascent = line.ascent();
  double descent = line.descent();
  Extend(piece_.boxes, box, ascent);
  Extend(piece_.decorations, box, ascent, descent);
  stack_.Place(box, ascent, descent);
  if (!row_.Empty() && stack_.Format().alignment == Alignment::Justify) Justify(line);
  line.setPosition({line.x() + Shift(line, box), box.baseline - line.ascent()});
}

/// Each text of a row begins a line.
void BreakBehindTexts(const RowCells& row, std::u16string& text) {
  for (const CellText& part : row.texts) {
    if (part.units == 0) continue;
    const auto end = static_cast<std::size_t>(part.end);
    text[end - static_cast<std::size_t>(part.units)] = kShownHidden;
    text[end - 1] = kShownLineBreak;
  }
}

}  // namespace

void QtLayouter::ForPaper() {
  forPaper_ = true;
  pictures.forPaper = true;
}

FontMetrics QtLayouter::MetricsOf(const Document& document, const CharFormat& format) {
  const CharStyle& style = styles.Of(document, format);
  return {style.ascent, style.descent, style.raise};
}

std::unique_ptr<Piece> QtLayouter::Make(const Document& document, const PieceSpan& wanted) {
  auto piece = std::make_unique<QtPiece>();
  const PieceSpan span = SpanOf(document, wanted);
  ShownText text(document, span.from, span.to,
                 [&](CharId id) -> const CharLook& { return styles.Of(document, id); });
  const bool composing = Open(*piece, document, span);
  if (composing) text.Insert(piece->composedAt, Composed().text);
  const RowCells row = RowCellsOf(*this, document, *piece);
  BreakBehindTexts(row, text.text);
  QList<FormatRange> formats = FormatsOf(text, document, styles);
  if (composing)
    for (FormatRange range : composedFormats) {
      range.start += piece->composedAt;
      formats.push_back(range);
    }
  const QTextCharFormat& first = styles.Of(document, document.CharFormatAt(span.from)).format;
  piece->layout.setFont(QFont(first.font(), CharStyles::Device()));
  piece->layout.setCacheEnabled(true);
  piece->layout.setText(ToQString(text.text));
  piece->decorations = std::move(text.decorations);
  piece->runs = std::move(text.runs);
  piece->boxes = BoxesIn(*this, document, *piece, row, static_cast<int>(text.text.size()));
  AddBoxes(*piece, document, styles, formats);
  if (document.Formats().paragraphs[piece->format].rightToLeft)
    AddLineBreaks(*piece, document, styles, formats);
  if (forPaper_) {
    HideFromReaders(*piece, formats);
    AddLinks(*piece, document, formats);
  }
  piece->layout.setFormats(formats);
  const bool tabs = text.text.find(u'\t') != text.text.npos;
  LineMaker lines(*this, document, *piece, row, tabs);
  if (!row.Empty())
    lines.BuildRow(EndsOf(row, static_cast<int>(text.text.size())));
  else if (!lines.Build(span))
    return nullptr;
  return piece;
}

}  // namespace lumenote
