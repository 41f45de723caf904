#include "backends/qt/view/ViewAccessible.h"

#include <QAccessibleWidget>
#include <QTextBoundaryFinder>
#include <algorithm>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

namespace {

/// Offsets are positions of the document.
class AccessibleView final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleView(RichTextView& view)
      : QAccessibleWidget(&view, QAccessible::EditableText), view_(view) {}

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text what) const override;

  // QAccessibleTextInterface
  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override { return Surface().Selected().Length() > 0 ? 1 : 0; }
  void addSelection(int start, int end) override { Select(start, end); }
  void removeSelection(int) override { Select(Surface().Caret(), Surface().Caret()); }
  void setSelection(int, int start, int end) override { Select(start, end); }
  int cursorPosition() const override { return Surface().Caret(); }
  void setCursorPosition(int position) override { Select(position, position); }
  QString text(int start, int end) const override;
  QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                           int* end) const override;
  QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                          int* end) const override;
  QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                       int* end) const override;
  int characterCount() const override { return Surface().Content().Length(); }
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  QString attributes(int offset, int* start, int* end) const override;

  // QAccessibleEditableTextInterface
  void deleteText(int start, int end) override { Put(start, end, {}); }
  void insertText(int offset, const QString& text) override { Put(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override { Put(start, end, text); }

 private:
  DocumentSurface& Surface() const { return view_.Surface(); }
  void Select(Position anchor, Position caret);
  void Put(Position start, Position end, const QString& text);
  Selection Unit(Position offset, QAccessible::TextBoundaryType type) const;
  Selection UnitIn(Selection paragraph, Position offset, QAccessible::TextBoundaryType type) const;
  QString Told(Selection range, int* start, int* end) const;

  RichTextView& view_;
};

void* AccessibleView::interface_cast(QAccessible::InterfaceType type) {
  if (!view_.IsAttached()) return nullptr;
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface)
    return static_cast<QAccessibleEditableTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleView::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiLine = true;
  state.selectableText = true;
  state.editable = !view_.IsLocked();
  state.readOnly = view_.IsLocked();
  return state;
}

QString AccessibleView::text(QAccessible::Text what) const {
  constexpr Position kMost = 10'000;  // a glimpse; the rest through the text interface
  return what == QAccessible::Value && view_.IsAttached() ? text(0, kMost)
                                                          : QAccessibleWidget::text(what);
}

void AccessibleView::selection(int index, int* start, int* end) const {
  const Selection selected = index == 0 ? Surface().Selected() : Selection{};
  *start = selected.start;
  *end = selected.end;
}

void AccessibleView::Select(Position anchor, Position caret) {
  view_.Act([&] { Surface().UserSelect(anchor, caret); });
}

void AccessibleView::Put(Position start, Position end, const QString& text) {
  if (view_.IsLocked()) return;
  view_.Act([&] {
    Surface().UserSelect(start, end);
    if (text.isEmpty())
      Surface().Clear();
    else
      Surface().UserType(WithCrLf(FromQString(text)));
  });
}

QString AccessibleView::text(int start, int end) const {
  return ToQString(Surface().Content().Text(std::max(start, 0), std::max(end, 0)));
}

QString AccessibleView::Told(Selection range, int* start, int* end) const {
  *start = range.start;
  *end = range.end;
  return text(range.start, range.end);
}

Selection AccessibleView::UnitIn(Selection paragraph, Position offset,
                                 QAccessible::TextBoundaryType type) const {
  const auto kind = type == QAccessible::WordBoundary       ? QTextBoundaryFinder::Word
                    : type == QAccessible::SentenceBoundary ? QTextBoundaryFinder::Sentence
                                                            : QTextBoundaryFinder::Grapheme;
  constexpr Position kReach = 2'000;  // in long paragraphs
  const Position from = std::max(paragraph.start, offset - kReach);
  const QString text = this->text(from, std::min(paragraph.end, offset + kReach));
  QTextBoundaryFinder finder(kind, text);
  finder.setPosition(offset - from);
  const bool atStart = finder.isAtBoundary();
  const auto start = atStart ? offset - from : finder.toPreviousBoundary();
  finder.setPosition(offset - from);
  const auto end = finder.toNextBoundary();
  return {from + static_cast<Position>(std::max<qsizetype>(start, 0)),
          from + static_cast<Position>(end < 0 ? text.size() : end)};
}

Selection AccessibleView::Unit(Position offset, QAccessible::TextBoundaryType type) const {
  const Document& document = Surface().Content();
  offset = std::clamp(offset, 0, document.Length());
  if (type == QAccessible::NoBoundary) return {0, document.Length()};
  const Position number = document.ParagraphOf(offset);
  const Selection paragraph{document.ParagraphStart(number),
                            std::min(document.ParagraphEnd(number) + 2, document.Length())};
  if (type == QAccessible::ParagraphBoundary) return paragraph;
  if (type != QAccessible::LineBoundary) return UnitIn(paragraph, offset, type);
  const Piece& piece = view_.Pane().Cache().At(offset);
  const int line = piece.LineOf(std::min(offset, piece.to));
  const bool last = line + 1 == std::ssize(piece.lines);
  return {piece.LineStart(line), !last          ? piece.LineStart(line + 1)
                                 : piece.closes ? paragraph.end
                                                : piece.to};
}

QString AccessibleView::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                     int* end) const {
  return Told(Unit(offset, type), start, end);
}

QString AccessibleView::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                         int* end) const {
  const Selection here = Unit(offset, type);
  return Told(here.start > 0 ? Unit(here.start - 1, type) : Selection{}, start, end);
}

QString AccessibleView::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                        int* end) const {
  const Selection here = Unit(offset, type);
  const Position length = Surface().Content().Length();
  return Told(here.end < length ? Unit(here.end, type) : Selection{length, length}, start, end);
}

QRect AccessibleView::characterRect(int offset) const {
  TextPane& pane = view_.Pane();
  const std::optional<QRectF> line = pane.LineAt(offset);
  const std::optional<QRectF> left = pane.CaretAt(offset);
  const std::optional<QRectF> right = pane.CaretAt(offset + 1);
  if (!line || !left) return {};
  QRectF box(left->left(), line->top(), 1, line->height());
  if (right && right->top() == left->top()) box.setRight(right->left());
  return box.toAlignedRect().translated(view_.viewport()->mapToGlobal(QPoint()));
}

int AccessibleView::offsetAtPoint(const QPoint& point) const {
  return view_.Pane().PositionAt(view_.viewport()->mapFromGlobal(QPointF(point)));
}

void AccessibleView::scrollToSubstring(int start, int end) {
  view_.Pane().Reveal(end);
  view_.Pane().Reveal(start);
  view_.Settle();
}

QString AccessibleView::attributes(int offset, int* start, int* end) const {
  const Selection paragraph = Unit(offset, QAccessible::ParagraphBoundary);
  QString told;
  *start = *end = offset;
  const Document& document = Surface().Content();
  document.ForEachRun(paragraph.start, paragraph.end, [&](Position at, TextView run, CharId id) {
    const auto behind = at + static_cast<Position>(run.Size());
    if (offset < at || offset >= behind) return;
    const CharFormat& format = document.Formats().characters[id];
    const QString family = ToQString(document.Formats().fonts[format.font].name);
    told = QStringLiteral("font-family:\"%1\";font-size:%2pt;font-weight:%3;font-style:%4;")
               .arg(family)
               .arg(format.size / 2.0)
               .arg(QLatin1String(format.effects & kBold ? "bold" : "normal"))
               .arg(QLatin1String(format.effects & kItalic ? "italic" : "normal"));
    *start = at;
    *end = behind;
  });
  return told;
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* view = dynamic_cast<RichTextView*>(object);
  return view ? new AccessibleView(*view) : nullptr;
}

}  // namespace

void UseViewAccessibility() {
  [[maybe_unused]] static const bool kInstalled = [] {
    QAccessible::installFactory(MakeInterface);
    return true;
  }();
}

void AnnounceChange(RichTextView& view, const DocumentChange& change) {
  if (!QAccessible::isActive()) return;
  constexpr Position kMost = 10'000;
  const Position end = change.at + std::min(change.inserted, kMost);
  const QString inserted = ToQString(view.Surface().Content().Text(change.at, end));
  const QString removed(std::min(change.removed, kMost), QChar(u'\uFFFD'));
  QAccessibleTextUpdateEvent event(&view, change.at, removed, inserted);
  QAccessible::updateAccessibility(&event);
}

void AnnounceSelection(RichTextView& view) {
  if (!QAccessible::isActive()) return;
  const Selection selected = view.Surface().Selected();
  QAccessibleTextSelectionEvent event(&view, selected.start, selected.end);
  event.setCursorPosition(view.Surface().Caret());
  QAccessible::updateAccessibility(&event);
}

}  // namespace lumenote
