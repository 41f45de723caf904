#include "backends/qt/view/SpellingMarks.h"

#include <QApplication>
#include <QPainterPath>
#include <algorithm>

#include "backends/qt/spelling/Speller.h"
#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"
#include "surface/keys/SpelledWords.h"

namespace lumenote {

namespace {

constexpr int kPause = 600;       // milliseconds without a key, after which no word is being typed
constexpr double kBelow = 2;      // pixels from the baseline to the wave
constexpr double kClickable = 3;  // pixels above the wave that belong to it

QPainterPath WaveUnder(const PixelRect& box, double y) {
  constexpr double kStep = 2, kHeight = 1.5;
  QPainterPath path(QPointF(box.left, y));
  bool down = true;
  for (double x = box.left + kStep; x < box.right; x += kStep, down = !down)
    path.lineTo(x, down ? y + kHeight : y);
  return path;
}

double WaveOf(const ShownPiece& item, const RangeBox& part) {
  const PieceLine& line = item.piece->lines[static_cast<std::size_t>(part.line)];
  return item.y + line.baseline + kBelow;
}

std::vector<std::u16string> FromQStrings(const QStringList& texts) {
  std::vector<std::u16string> all;
  for (const QString& text : texts) all.push_back(FromQString(text));
  return all;
}

void AddEntries(QMenu& menu, const std::vector<SpellingEntry>& entries,
                const std::function<void(const SpellingEntry&)>& perform) {
  for (const SpellingEntry& entry : entries) {
    if (entry.startsPart) menu.addSeparator();
    const QString caption = ToQString(entry.caption);
    if (!entry.entries.empty())
      AddEntries(*menu.addMenu(caption), entry.entries, perform);
    else
      menu.addAction(caption, [=] { perform(entry); })
          ->setEnabled(entry.act != SpellingEntry::Act::None);
  }
}

}  // namespace

SpellingMarks::SpellingMarks(RichTextView& view, Speller& speller, Learn learn)
    : view_(view), speller_(speller), learn_(std::move(learn)) {
  speller.OnChange(this, [this] { view_.viewport()->update(); });
}

std::u16string SpellingMarks::TextOf(Selection word) const {
  return view_.Surface().Content().Text(word.start, word.end);
}

bool SpellingMarks::IsMarked(Selection word) const {
  const Position caret = view_.Surface().Caret();
  if (typing_.isActive() && word.start <= caret && caret <= word.end) return false;
  return speller_.IsWrong(TextOf(word));
}

void SpellingMarks::Paint(QPainter& painter, const QRectF& area) {
  painter.save();
  painter.setPen(QPen(Qt::red, 1));
  painter.setRenderHint(QPainter::Antialiasing);
  for (const ShownPiece& item : view_.Pane().Visible())
    if (item.y < area.bottom() && item.y + item.piece->height > area.top())
      PaintPiece(painter, item);
  painter.restore();
}

void SpellingMarks::PaintPiece(QPainter& painter, const ShownPiece& item) {
  const Document& document = view_.Surface().Content();
  for (const Selection& word : SpelledWords(document, item.piece->from, item.piece->to)) {
    if (!IsMarked(word)) continue;
    for (const RangeBox& part : BoxesOf(view_.Pane(), item, word))
      painter.drawPath(WaveUnder(part.box, WaveOf(item, part)));
  }
}

bool SpellingMarks::Narrow(Selection& range, Position at) const {
  constexpr Position kReach = 500;  // of the search in a long range
  range = {std::max(range.start, at - kReach), std::min(range.end, at + kReach)};
  for (const Selection& word : SpelledWords(view_.Surface().Content(), range.start, range.end)) {
    if (!IsMarked(word)) continue;
    if (word.start > at) {
      range.end = std::min(range.end, word.start);
      return false;
    }
    const bool inside = at < word.end;
    range.start = std::max(range.start, inside ? word.start : word.end);
    if (inside) range.end = std::min(range.end, word.end);
    if (inside) return true;
  }
  return false;
}

void SpellingMarks::Changed() { typing_.start(kPause, this); }

void SpellingMarks::timerEvent(QTimerEvent*) {
  typing_.stop();
  view_.viewport()->update();
}

bool SpellingMarks::Click(QPointF at) {
  const Document& document = view_.Surface().Content();
  const Selection word = SpelledWordAt(document, view_.Pane().PositionAt(ToPoint(at)));
  if (word.Length() == 0 || !IsMarked(word)) return false;
  for (const ShownPiece& item : view_.Pane().Visible())
    for (const RangeBox& part : BoxesOf(view_.Pane(), item, word)) {
      const double wave = WaveOf(item, part);
      const QRectF target(part.box.left, wave - kClickable, part.box.Width(),
                          part.box.bottom - wave + kClickable);
      if (!target.contains(at)) continue;
      Open(word);
      return true;
    }
  return false;
}

void SpellingMarks::Open() {
  const Selection word = SpelledWordAt(view_.Surface().Content(), view_.Surface().Caret());
  if (word.Length() > 0 && speller_.IsWrong(TextOf(word))) Open(word);
}

void SpellingMarks::Open(Selection word) {
  const Misspelling wanted{word, TextOf(word)};
  const int request = ++requests_;
  speller_.Suggest(wanted.text, this, [=, this](const QStringList& suggestions) {
    if (request == requests_ && IsThere(wanted) && MayPopUp()) ShowPopup(wanted, suggestions);
  });
}

bool SpellingMarks::IsThere(const Misspelling& word) const {
  return view_.IsAttached() && TextOf(word.range) == word.text;
}

// The user may have gone on to something else meanwhile.
bool SpellingMarks::MayPopUp() const {
  return view_.hasFocus() && !QApplication::activePopupWidget() &&
         QApplication::mouseButtons() == Qt::NoButton;
}

void SpellingMarks::ShowPopup(const Misspelling& word, const QStringList& suggestions) {
  const auto caret = view_.Pane().CaretAt(word.range.start);
  if (!caret) return;
  const PixelPoint below{caret->left, caret->bottom};
  auto* menu = new QMenu(&view_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setFont(ControlFont());
  AddEntries(*menu, SpellingEntries(FromQStrings(suggestions), view_.IsLocked()),
             [=, this](const SpellingEntry& entry) { Perform(entry, word, below); });
  menu->popup(view_.viewport()->mapToGlobal(ToQPoint(below).toPoint()));
}

void SpellingMarks::Perform(const SpellingEntry& entry, const Misspelling& word, PixelPoint below) {
  switch (entry.act) {
    case SpellingEntry::Act::None:
      return;
    case SpellingEntry::Act::Mend:
      return Mend(word, entry.right);
    case SpellingEntry::Act::MendAndLearn:
      return MendAndLearn(word, entry.right);
    case SpellingEntry::Act::AddWord:
      return view_.Text().Act([&] { speller_.Add(word.text); });
    case SpellingEntry::Act::OpenNoteMenu:
      return view_.OpenNoteMenu(below);
  }
}

// What happens between two acts may end the view, but not this object.
void SpellingMarks::Mend(const Misspelling& word, const std::u16string& right) {
  if (!IsThere(word) || view_.IsLocked()) return;
  view_.Text().Select(word.range.start, word.range.end);
  if (IsThere(word)) view_.Text().Type(right);
}

void SpellingMarks::MendAndLearn(const Misspelling& word, const std::u16string& right) {
  Mend(word, right);
  if (!view_.IsAttached() || IsThere(word)) return;
  view_.Text().Act([&] { learn_(word.text, right); });
}

}  // namespace lumenote
