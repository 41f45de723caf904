#include "backends/qt/view/Announcer.h"

#include <QAccessible>
#include <algorithm>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

namespace {

QString Excerpt(std::u16string_view text) {
  constexpr std::size_t kMost = 10'000;
  return ToQString(text.substr(0, kMost));
}

/// Takes off what both begin and end with, and returns the length of their common beginning.
Position TakeCommon(std::u16string_view& one, std::u16string_view& other) {
  const auto begin = std::ranges::mismatch(one, other).in1 - one.begin();
  one.remove_prefix(static_cast<std::size_t>(begin));
  other.remove_prefix(static_cast<std::size_t>(begin));
  while (!one.empty() && !other.empty() && one.back() == other.back()) {
    one.remove_suffix(1);
    other.remove_suffix(1);
  }
  return static_cast<Position>(begin);
}

}  // namespace

std::u16string Announcer::Removed(const DocumentChange& change) const {
  std::u16string text;
  if (!known_ || change.at + change.removed > known_->Length()) return text;
  known_->ForEachRun(change.at, change.at + change.removed,
                     [&](Position, TextView run, CharId) { run.AppendTo(text); });
  return text;
}

void Announcer::Changed(const DocumentChange& change) {
  if (!QAccessible::isActive()) return known_.reset();
  const Document& content = view_.Surface().Content();
  const std::u16string was = Removed(change);
  const std::u16string is = content.Text(change.at, change.at + change.inserted);
  known_ = content.Leaves();
  if (was == is) {
    QAccessibleEvent event(&view_, QAccessible::TextAttributeChanged);
    return QAccessible::updateAccessibility(&event);
  }
  std::u16string_view removed = was;
  std::u16string_view inserted = is;
  const Position common = TakeCommon(removed, inserted);
  TellText(change.at + common, removed, inserted);
}

void Announcer::TellText(Position at, std::u16string_view removed, std::u16string_view inserted) {
  if (!removed.empty()) {
    QAccessibleTextRemoveEvent event(&view_, at, Excerpt(removed));
    QAccessible::updateAccessibility(&event);
  }
  if (!inserted.empty()) {
    QAccessibleTextInsertEvent event(&view_, at, Excerpt(inserted));
    QAccessible::updateAccessibility(&event);
  }
}

void Announcer::SelectionMoved() {
  if (!QAccessible::isActive()) return;
  known_ = view_.Surface().Content().Leaves();
  const Position caret = view_.Surface().Caret();
  const Selection selected = view_.Surface().Selected();
  if (std::exchange(caret_, caret) != caret) {
    QAccessibleTextCursorEvent event(&view_, caret);
    QAccessible::updateAccessibility(&event);
  }
  const Selection before = std::exchange(selected_, selected);
  if (before == selected || (before.Length() == 0 && selected.Length() == 0)) return;
  QAccessibleTextSelectionEvent event(&view_, selected.start, selected.end);
  event.setCursorPosition(caret);
  QAccessible::updateAccessibility(&event);
}

}  // namespace lumenote
