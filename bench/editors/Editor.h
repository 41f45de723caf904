// An editor that is measured beside others: the same acts on each, through its own calls and
// events.
#pragma once
#include <QAbstractScrollArea>
#include <QString>
#include <memory>

namespace lumenote {

/// Positions count characters, all of which are in Latin-1. Each act includes what the editor's
/// view does at once, not the frame that shows it.
class Editor {
 public:
  virtual ~Editor() = default;

  /// The widget to show, and to send keys and turns of the wheel to.
  virtual QAbstractScrollArea& Widget() = 0;
  /// Replaces the text; nothing can be undone then.
  virtual void Fill(const QString& text) = 0;
  virtual void PutCaret(int at) = 0;
  virtual void Insert(int at, char letter) = 0;
  /// The count of matches, case respected.
  virtual int FindAll(const QString& needle) = 0;
  /// As one undo step; the count of matches.
  virtual int ReplaceAll(const QString& needle, const QString& replacement) = 0;
  virtual void MakeAllBold() = 0;
  virtual void Undo() = 0;
};

std::unique_ptr<Editor> MakeOurs();
std::unique_ptr<Editor> MakeQt();
/// Null where its package is not installed.
std::unique_ptr<Editor> MakeScintilla();

}  // namespace lumenote
