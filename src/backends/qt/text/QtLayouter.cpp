#include "backends/qt/text/QtLayouter.h"

#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "backends/qt/toolkit/QtText.h"
#include "base/Characters.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

constexpr double kOutOfSight = 1e6;  // pixels; drawing stops at the first line below this
constexpr char16_t kLineBreak = u'\v';
constexpr char16_t kObject = u'\uFFFC';
// Stand-ins in the layout's text, one unit each.
constexpr char16_t kLineSeparator = u'\u2028';
constexpr char16_t kPlaceholder = u'\u25A1';
constexpr char16_t kInvisible = u'\u200C';

using FormatRange = QTextLayout::FormatRange;

/// Text and formats of a span in Qt's terms.
class SpanText {
 public:
  SpanText(const Document& document, const PieceSpan& span, CharStyles& styles)
      : document_(document), styles_(styles) {
    text_.reserve(span.to - span.from);
    document.ForEachRun(span.from, span.to,
                        [&](Position, TextView run, CharId id) { Append(run.String(), id); });
  }

  void Insert(const QString& composed, const QList<FormatRange>& formats, int at);
  void MoveTo(QtPiece& piece);
  bool HasTabs() const { return text_.contains(u'\t'); }

 private:
  void Append(std::u16string_view run, CharId id);
  void AppendCharacters(std::u16string_view run, const CharStyle& style);
  void AppendSmallCapitals(std::u16string_view run, const CharStyle& style, int start);
  void Decorate(const CharStyle& style, int start);

  const Document& document_;
  CharStyles& styles_;
  QString text_;
  QList<FormatRange> formats_;
  std::vector<Decoration> decorations_;
  std::vector<PieceRun> runs_;
};

void SpanText::Append(std::u16string_view run, CharId id) {
  const int start = static_cast<int>(text_.size());
  const CharStyle& style = styles_.Of(document_, id);
  const bool goesOn = !runs_.empty() && runs_.back().format == id;
  if (!goesOn) runs_.push_back({start, id});
  AppendCharacters(run, style);
  if (style.smallLetter)
    AppendSmallCapitals(run, style, start);
  else if (goesOn)
    formats_.back().length += static_cast<int>(run.size());
  else
    formats_.push_back({start, static_cast<int>(run.size()), style.format});
  Decorate(style, start);
}

void SpanText::AppendCharacters(std::u16string_view run, const CharStyle& style) {
  if (style.hidden) {
    text_.append(QString(static_cast<qsizetype>(run.size()), QChar(kInvisible)));
    return;
  }
  const qsizetype start = text_.size();
  text_.append(style.capitals ? ToQString(Upper(run)) : ToQString(run));
  if (run.find_first_of(u"\v\uFFFC") == run.npos) return;
  std::replace(text_.begin() + start, text_.end(), QChar(kLineBreak), QChar(kLineSeparator));
  std::replace(text_.begin() + start, text_.end(), QChar(kObject), QChar(kPlaceholder));
}

void SpanText::AppendSmallCapitals(std::u16string_view run, const CharStyle& style, int start) {
  const auto isSmall = [](char16_t c) { return ToUpper(c) != c; };
  for (std::size_t from = 0; from < run.size();) {
    const bool small = isSmall(run[from]);
    std::size_t to = from + 1;
    while (to < run.size() && isSmall(run[to]) == small) ++to;
    formats_.push_back({start + static_cast<int>(from), static_cast<int>(to - from),
                        small ? *style.smallLetter : style.format});
    from = to;
  }
}

void SpanText::Decorate(const CharStyle& style, int start) {
  const bool underlined = style.underline != Underline::None;
  if (!underlined && style.strikes == 0 && !style.object && style.raise == 0) return;
  if (style.hidden) return;
  Decoration decoration;
  decoration.start = start;
  decoration.end = static_cast<int>(text_.size());
  decoration.underline = style.underline;
  decoration.strikes = style.strikes;
  decoration.object = style.object;
  decoration.ascent = style.ascent;
  decoration.descent = style.descent;
  decoration.raise = style.raise;
  if (!style.object && style.format.hasProperty(QTextFormat::ForegroundBrush))
    decoration.colour = style.format.foreground().color();
  decorations_.push_back(decoration);
}

void SpanText::Insert(const QString& composed, const QList<FormatRange>& formats, int at) {
  const int length = static_cast<int>(composed.size());
  text_.insert(at, composed);
  for (FormatRange& range : formats_) {
    if (range.start >= at && range.start > 0)
      range.start += length;
    else if (range.start + range.length >= at)
      range.length += length;
  }
  for (Decoration& decoration : decorations_) {
    if (decoration.start >= at) decoration.start += length;
    if (decoration.end > at) decoration.end += length;
  }
  for (FormatRange range : formats) {
    range.start += at;
    formats_.push_back(range);
  }
}

void SpanText::MoveTo(QtPiece& piece) {
  piece.layout.setText(text_);
  piece.layout.setFormats(formats_);
  piece.decorations = std::move(decorations_);
  piece.runs = std::move(runs_);
}

/// Breaks the text of a piece into lines.
class LineMaker {
 public:
  LineMaker(const TextLayouter& layouter, const Document& document, QtPiece& piece, bool tabs)
      : piece_(piece), stack_(layouter, document, piece) {
    if (!tabs) return;
    const TabStops& stops = document.Formats().tabs[stack_.Format().tabs];
    tabs_ = TabsOf(layouter, stops, stack_.Edges());
    tabStep_ = layouter.Pixels(kDefaultTabStep);
  }

  /// Returns false if an incomplete span gave no whole line.
  bool Build(const PieceSpan& span);

 private:
  QTextOption Option(double lineX) const;
  bool AddLines(const PieceSpan& span);
  void Place(QTextLine line, PieceLine& box);

  QtPiece& piece_;
  LineStack stack_;
  std::vector<PixelTab> tabs_;
  double tabStep_ = 0;
};

Qt::Alignment AlignmentOf(const ParaFormat& format) {
  switch (format.alignment) {
    case Alignment::Left:
      return Qt::AlignLeft;
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Centre:
      return Qt::AlignHCenter;
    case Alignment::Justify:
      return Qt::AlignJustify;
  }
  return Qt::AlignLeft;
}

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
  return {x, QTextOption::LeftTab};
}

// Qt measures tab stops from the line's start, the document from the left edge.
QTextOption LineMaker::Option(double lineX) const {
  const ParaFormat& format = stack_.Format();
  QTextOption option(AlignmentOf(format));
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTextDirection(format.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
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

void LineMaker::Place(QTextLine line, PieceLine& box) {
  double ascent = line.ascent();
  double descent = line.descent();
  for (const Decoration& run : piece_.decorations) {
    if (run.end <= box.start || run.start >= box.end) continue;
    ascent = std::max(ascent, run.ascent + run.raise);
    descent = std::max(descent, run.descent - run.raise);
  }
  stack_.Place(box, ascent, descent);
  line.setPosition({line.position().x(), box.baseline - line.ascent()});
}

}  // namespace

FontMetrics QtLayouter::MetricsOf(const Document& document, const CharFormat& format) {
  const CharStyle& style = styles.Of(document, format);
  return {style.ascent, style.descent, style.raise};
}

std::unique_ptr<Piece> QtLayouter::Make(const Document& document, const PieceSpan& span) {
  auto piece = std::make_unique<QtPiece>();
  SpanText text(document, span, styles);
  if (Open(*piece, document, span))
    text.Insert(ToQString(Composed().text), composedFormats, piece->composedAt);
  const QTextCharFormat& first = styles.Of(document, document.CharFormatAt(span.from)).format;
  piece->layout.setFont(QFont(first.font(), CharStyles::Device()));
  piece->layout.setCacheEnabled(true);
  text.MoveTo(*piece);
  if (!LineMaker(*this, document, *piece, text.HasTabs()).Build(span)) return nullptr;
  return piece;
}

}  // namespace lumenote
