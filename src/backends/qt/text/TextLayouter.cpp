#include "backends/qt/text/TextLayouter.h"

#include <QHash>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "base/Characters.h"

namespace lumenote {

namespace {

constexpr double kMostTwips = 31680;  // 22 inches
constexpr double kLeastWidth = 16;
constexpr double kTabStep = 720;     // twips
constexpr double kBulletRoom = 240;  // twips, where the format leaves less
constexpr double kOutOfSight = 1e6;  // below: lines are drawn up to the first one out of sight
constexpr char16_t kLineBreak = u'\v';
constexpr char16_t kObject = u'\uFFFC';
// What stands for them in the layout's text: one unit each.
constexpr char16_t kLineSeparator = u'\u2028';
constexpr char16_t kPlaceholder = u'\u25A1';
constexpr char16_t kInvisible = u'\u200C';

using FormatRange = QTextLayout::FormatRange;

/// Text and formats of a span as the toolkit wants them.
class SpanText {
 public:
  SpanText(const Document& document, const PieceSpan& span, CharStyles& styles)
      : document_(document), styles_(styles) {
    text_.reserve(span.to - span.from);
    document.ForEachRun(span.from, span.to,
                        [&](Position, TextView run, CharId id) { Append(run.String(), id); });
  }

  void Insert(const Preedit& preedit, int at);
  void MoveTo(Piece& piece);
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

void SpanText::Insert(const Preedit& preedit, int at) {
  const int length = static_cast<int>(preedit.text.size());
  text_.insert(at, preedit.text);
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
  for (FormatRange range : preedit.formats) {
    range.start += at;
    formats_.push_back(range);
  }
}

void SpanText::MoveTo(Piece& piece) {
  piece.layout.setText(text_);
  piece.layout.setFormats(formats_);
  piece.decorations = std::move(decorations_);
  piece.runs = std::move(runs_);
}

/// Where the lines of a paragraph lie between the text's edges, in pixels.
struct Edges {
  double first = 0;
  double following = 0;
  double right = 0;  // measured from the left edge
  double bullet = -1;
};

Edges EdgesOf(const TextLayouter& layouter, const ParaFormat& format) {
  Edges edges;
  const double first = layouter.Pixels(format.firstIndent);
  const double hanging = layouter.Pixels(format.hangingIndent);
  edges.first = first;
  edges.following = first + hanging;
  edges.right = layouter.Width() - layouter.Pixels(format.rightIndent);
  if (format.bullet) {
    edges.bullet = std::max(first, 0.0);
    edges.first = first + std::max(hanging, layouter.Pixels(kBulletRoom));
  }
  return edges;
}

/// Breaks the text of a piece into lines and stacks them.
class LineStack {
 public:
  LineStack(const TextLayouter& layouter, const Document& document, Piece& piece, bool tabs)
      : layouter_(layouter),
        piece_(piece),
        format_(document.Formats().paragraphs[piece.format]),
        stops_(document.Formats().tabs[format_.tabs]),
        edges_(EdgesOf(layouter, format_)),
        tabs_(tabs) {}

  /// Returns false when an incomplete span gave no whole line.
  bool Build(const PieceSpan& span);

 private:
  QTextOption Option(double lineX) const;
  QList<QTextOption::Tab> TabsFrom(double lineX) const;
  bool AddLines(const PieceSpan& span);
  void Stack();
  void Place(QTextLine line, PieceLine& box, double top) const;
  std::size_t LookOf(const PieceLine& box) const;
  double LineHeight(double natural) const;

  const TextLayouter& layouter_;
  Piece& piece_;
  const ParaFormat& format_;
  const TabStops& stops_;
  const Edges edges_;
  const bool tabs_;
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

// The toolkit counts tab stops from where the line begins; the document counts them from the left
// edge.
QList<QTextOption::Tab> LineStack::TabsFrom(double lineX) const {
  QList<QTextOption::Tab> tabs;
  const auto add = [&](double x, TabKind kind) {
    if (x > lineX) tabs.push_back(TabAt(x - lineX, kind));
  };
  double last = 0;
  for (const TabStop& stop : stops_) add(last = layouter_.Pixels(stop.position), stop.kind);
  if (edges_.following > last) add(last = edges_.following, TabKind::Left);
  const double step = layouter_.Pixels(kTabStep);
  for (double x = (std::floor(last / step) + 1) * step; x < edges_.right; x += step)
    add(x, TabKind::Left);
  std::sort(tabs.begin(), tabs.end(),
            [](const auto& one, const auto& other) { return one.position < other.position; });
  return tabs;
}

QTextOption LineStack::Option(double lineX) const {
  QTextOption option(AlignmentOf(format_));
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTextDirection(format_.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  if (!tabs_) return option;
  option.setTabStopDistance(layouter_.Pixels(kTabStep));
  option.setTabs(TabsFrom(lineX));
  return option;
}

bool LineStack::AddLines(const PieceSpan& span) {
  QTextLayout& layout = piece_.layout;
  const int known = span.nextKnown < 0 ? -1 : piece_.ToIndex(span.nextKnown);
  double x = piece_.opens ? edges_.first : edges_.following;
  layout.setTextOption(Option(x));
  for (;;) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) return true;
    const double width = std::max(edges_.right - x, kLeastWidth);
    line.setLineWidth(width);
    line.setPosition({format_.rightToLeft ? edges_.right - x - width : x, 0});
    const int end = line.textStart() + line.textLength();
    piece_.lines.push_back({line.textStart(), end, 0, 0, 0});
    if (end == known) return false;
    if (x != edges_.following) layout.setTextOption(Option(x = edges_.following));
  }
}

bool LineStack::Build(const PieceSpan& span) {
  piece_.layout.beginLayout();
  const bool reachedEnd = AddLines(span);
  piece_.layout.endLayout();
  if (reachedEnd && !span.complete) {
    QTextLine cut = piece_.layout.lineAt(piece_.layout.lineCount() - 1);
    cut.setPosition({0, kOutOfSight});
    piece_.lines.pop_back();
  }
  if (piece_.lines.empty()) return false;
  piece_.to = piece_.ToPosition(piece_.lines.back().end);
  Stack();
  return true;
}

void LineStack::Stack() {
  double top = piece_.opens ? layouter_.Pixels(format_.spaceBefore) : 0;
  for (std::size_t i = 0; i < piece_.lines.size(); ++i) {
    Place(piece_.layout.lineAt(static_cast<int>(i)), piece_.lines[i], std::round(top));
    top = piece_.lines[i].top + piece_.lines[i].height;
  }
  if (piece_.closes && format_.spaceAfter > 0) top += layouter_.Pixels(format_.spaceAfter);
  piece_.height = std::round(top);
  if (piece_.opens) piece_.bulletX = edges_.bullet;
  for (PieceLine& box : piece_.lines) box.look = LookOf(box);
}

// Text being composed changes its look without changing the document, and lines of a fixed height
// may overlap: such lines look like no other.
std::size_t LineStack::LookOf(const PieceLine& box) const {
  static std::size_t serial = 0;
  if (piece_.preeditLength > 0 || format_.lineRule == LineRule::Exact) return ++serial;
  const QString text = piece_.layout.text();
  const bool opens = piece_.opens && box.start == 0;
  const bool ends = piece_.closes && box.end == text.size();
  std::size_t look =
      qHashMulti(piece_.format, opens, ends, QStringView(text).mid(box.start, box.end - box.start));
  auto run = std::upper_bound(piece_.runs.begin(), piece_.runs.end(), box.start,
                              [](int at, const PieceRun& one) { return at < one.start; });
  if (run != piece_.runs.begin()) --run;
  for (; run != piece_.runs.end() && run->start < box.end; ++run)
    look = qHashMulti(look, std::max(run->start - box.start, 0), run->format);
  return look;
}

double LineStack::LineHeight(double natural) const {
  switch (format_.lineRule) {
    case LineRule::Single:
      return natural;
    case LineRule::OneAndHalf:
      return natural * 1.5;
    case LineRule::Double:
      return natural * 2;
    case LineRule::AtLeast:
      return std::max(natural, layouter_.Pixels(format_.lineSpacing));
    case LineRule::Exact:
      return std::max(1.0, layouter_.Pixels(format_.lineSpacing));
    case LineRule::Multiple:
      return natural * std::clamp(format_.lineSpacing / 20.0, 0.1, 100.0);
  }
  return natural;
}

// Room that a fixed height adds or takes lies above the text, that of a multiple below it.
void LineStack::Place(QTextLine line, PieceLine& box, double top) const {
  double ascent = line.ascent();
  double descent = line.descent();
  for (const Decoration& run : piece_.decorations) {
    if (run.end <= box.start || run.start >= box.end) continue;
    ascent = std::max(ascent, run.ascent + run.raise);
    descent = std::max(descent, run.descent - run.raise);
  }
  const double natural = std::ceil(ascent + descent);
  box.top = top;
  box.height = std::max(1.0, std::round(LineHeight(natural)));
  const bool roomAbove =
      format_.lineRule == LineRule::AtLeast || format_.lineRule == LineRule::Exact;
  box.baseline = std::round(top + ascent + (roomAbove ? box.height - natural : 0));
  line.setPosition({line.position().x(), box.baseline - line.ascent()});
}

}  // namespace

double TextLayouter::Pixels(double twips) const {
  return ToPixels(std::clamp(twips, -kMostTwips, kMostTwips)) * styles.Zoom();
}

std::unique_ptr<Piece> TextLayouter::LayOut(const Document& document, const PieceSpan& span) {
  auto piece = std::make_unique<Piece>();
  piece->from = span.from;
  const Position paragraph = document.ParagraphOf(span.from);
  piece->opens = document.ParagraphStart(paragraph) == span.from;
  piece->format = document.ParaFormatAt(span.from);
  SpanText text(document, span, styles);
  const bool composing =
      !preedit.text.isEmpty() && preedit.at >= span.from && preedit.at <= span.to;
  if (composing) {
    piece->preeditAt = preedit.at - span.from;
    piece->preeditLength = static_cast<int>(preedit.text.size());
    piece->preeditCaret = preedit.caret;
    text.Insert(preedit, piece->preeditAt);
  }
  const QTextCharFormat& first = styles.Of(document, document.CharFormatAt(span.from)).format;
  piece->layout.setFont(QFont(first.font(), CharStyles::Device()));
  piece->layout.setCacheEnabled(true);
  text.MoveTo(*piece);
  piece->closes = span.complete && span.to == document.ParagraphEnd(paragraph);
  if (!LineStack(*this, document, *piece, text.HasTabs()).Build(span)) return nullptr;
  piece->closes = piece->closes && piece->to == span.to;
  return piece;
}

}  // namespace lumenote
