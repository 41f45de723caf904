// Waves under misspelt words, and the popup that mends one.
#pragma once
#include <QBasicTimer>
#include <QMenu>
#include <QObject>
#include <QPainter>
#include <QPointF>
#include <functional>
#include <string>

#include "document/Document.h"
#include "view/acts/SpellingEntries.h"
#include "view/pane/RangeBoxes.h"

namespace lumenote {

class RichTextView;
class Speller;

/// Paints what is shown only, from what the speller knows by then; the word at the caret has to
/// wait for a pause in typing.
class SpellingMarks : public QObject {
 public:
  /// Stores the correction of a word: wrong, right.
  using Learn = std::function<void(const std::u16string&, const std::u16string&)>;

  /// The view must outlive the marks, the speller the view's being attached.
  SpellingMarks(RichTextView& view, Speller& speller, Learn learn);

  void Paint(QPainter& painter, const QRectF& area);
  /// Cuts a range down to what around `at` is one marked word, or holds none; whether it is marked.
  bool Narrow(Selection& range, Position at) const;
  /// The text has changed: the user may be typing.
  void Changed();
  /// Opens the popup of the wave at a point, if there is one.
  bool Click(QPointF at);
  /// Opens that of the word at the caret, if it is misspelt.
  void Open();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  /// A word as it was when its popup was asked for.
  struct Misspelling {
    Selection range;
    std::u16string text;
  };

  std::u16string TextOf(Selection word) const;
  bool IsMarked(Selection word) const;
  void PaintPiece(QPainter& painter, const ShownPiece& item);
  void Open(Selection word);
  bool IsThere(const Misspelling& word) const;
  bool MayPopUp() const;
  void ShowPopup(const Misspelling& word, const QStringList& suggestions);
  void Perform(const SpellingEntry& entry, const Misspelling& word, PixelPoint below);
  void Mend(const Misspelling& word, const std::u16string& right);
  void MendAndLearn(const Misspelling& word, const std::u16string& right);

  RichTextView& view_;
  Speller& speller_;
  Learn learn_;
  QBasicTimer typing_;
  int requests_ = 0;  // for suggestions; only the last one is answered
};

}  // namespace lumenote
