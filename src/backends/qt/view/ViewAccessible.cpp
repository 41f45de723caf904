// A view as assistive programs see it.
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/TextAttributes.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

namespace {

TextUnit UnitOf(QAccessible::TextBoundaryType type) {
  switch (type) {
    case QAccessible::CharBoundary:
      return TextUnit::Character;
    case QAccessible::WordBoundary:
      return TextUnit::Word;
    case QAccessible::SentenceBoundary:
      return TextUnit::Sentence;
    case QAccessible::LineBoundary:
      return TextUnit::Line;
    case QAccessible::ParagraphBoundary:
      return TextUnit::Paragraph;
    case QAccessible::NoBoundary:
      return TextUnit::All;
  }
  return TextUnit::All;
}

/// Adapts `AccessibleText` to Qt's interfaces.
class AccessibleView final : public AccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
 public:
  using Boundary = QAccessible::TextBoundaryType;

  explicit AccessibleView(RichTextView& view)
      : AccessibleWidget(view, view), view_(view), text_(view.Text()) {}

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text what) const override;
  // The text's own parts would claim the focus, too.
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }

  // QAccessibleTextInterface
  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override { return Surface().Selected().Length() > 0 ? 1 : 0; }
  void addSelection(int start, int end) override { text_.Select(start, end); }
  void removeSelection(int) override { text_.Select(Surface().Caret(), Surface().Caret()); }
  void setSelection(int, int start, int end) override { text_.Select(start, end); }
  int cursorPosition() const override { return Surface().Caret(); }
  void setCursorPosition(int position) override { text_.Select(position, position); }
  QString text(int start, int end) const override { return ToQString(text_.Text({start, end})); }
  QString textBeforeOffset(int offset, Boundary type, int* start, int* end) const override {
    return Answer(text_.Before(offset, UnitOf(type)), start, end);
  }
  QString textAfterOffset(int offset, Boundary type, int* start, int* end) const override {
    return Answer(text_.Behind(offset, UnitOf(type)), start, end);
  }
  QString textAtOffset(int offset, Boundary type, int* start, int* end) const override {
    return Answer(text_.At(offset, UnitOf(type)), start, end);
  }
  int characterCount() const override { return Surface().Content().Length(); }
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override { text_.Reveal({start, end}); }
  QString attributes(int offset, int* start, int* end) const override;

  // QAccessibleEditableTextInterface
  void deleteText(int start, int end) override { text_.Replace({start, end}, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    text_.Replace({start, end}, FromQString(text));
  }

 private:
  DocumentSurface& Surface() const { return view_.Surface(); }
  QString Answer(Selection range, int* start, int* end) const;

  RichTextView& view_;
  AccessibleText text_;
};

void* AccessibleView::interface_cast(QAccessible::InterfaceType type) {
  if (!view_.IsAttached()) return nullptr;
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface)
    return static_cast<QAccessibleEditableTextInterface*>(this);
  return AccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleView::state() const {
  QAccessible::State state = AccessibleWidget::state();
  state.multiLine = true;
  state.selectableText = true;
  state.editable = !view_.IsLocked();
  state.readOnly = view_.IsLocked();
  return state;
}

QString AccessibleView::text(QAccessible::Text what) const {
  constexpr Position kMax = 10'000;  // an excerpt; the rest is available through the text interface
  return what == QAccessible::Value && view_.IsAttached() ? text(0, kMax)
                                                          : AccessibleWidget::text(what);
}

void AccessibleView::selection(int index, int* start, int* end) const {
  const Selection selected = index == 0 ? Surface().Selected() : Selection{};
  *start = selected.start;
  *end = selected.end;
}

QString AccessibleView::Answer(Selection range, int* start, int* end) const {
  *start = range.start;
  *end = range.end;
  return text(range.start, range.end);
}

QRect AccessibleView::characterRect(int offset) const {
  const std::optional<PixelRect> box = text_.BoxOf(offset);
  if (!box) return {};
  return ToQRect(*box).toAlignedRect().translated(view_.viewport()->mapToGlobal(QPoint()));
}

int AccessibleView::offsetAtPoint(const QPoint& point) const {
  return text_.OffsetAt(ToPoint(view_.viewport()->mapFromGlobal(QPointF(point))));
}

QString AccessibleView::attributes(int offset, int* start, int* end) const {
  std::optional<AccessibleText::Run> run = text_.RunAt(offset);
  const SpellingMarks* spelling = view_.Spelling();
  const bool misspelt = run && spelling && spelling->Narrow(run->range, offset);
  *start = run ? run->range.start : offset;
  *end = run ? run->range.end : offset;
  return run ? TextAttributes(*run, Surface().Content().Formats(), misspelt) : QString();
}

}  // namespace

QAccessibleInterface* RichTextView::MakeInterface(QWidget&) { return new AccessibleView(*this); }

}  // namespace lumenote
