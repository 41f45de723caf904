// QTextEdit over QTextDocument.
#include <QTextDocument>
#include <QTextEdit>

#include "Editor.h"

namespace lumenote {
namespace {

class QtEditor final : public Editor {
 public:
  QAbstractScrollArea& Widget() override { return edit_; }
  void Fill(const QString& text) override { edit_.setPlainText(text); }
  void PutCaret(int at) override {
    QTextCursor cursor(edit_.document());
    cursor.setPosition(at);
    edit_.setTextCursor(cursor);
  }
  void Insert(int at, char letter) override {
    QTextCursor cursor(edit_.document());
    cursor.setPosition(at);
    cursor.insertText(QString(QLatin1Char(letter)));
  }
  int FindAll(const QString& needle) override {
    int count = 0;
    for (QTextCursor match = Find(needle, 0); !match.isNull();
         match = Find(needle, match.selectionEnd()))
      ++count;
    return count;
  }
  int ReplaceAll(const QString& needle, const QString& replacement) override {
    QTextCursor step(edit_.document());
    step.beginEditBlock();
    int count = 0;
    for (QTextCursor match = Find(needle, 0); !match.isNull();
         match = Find(needle, match.position()), ++count)
      match.insertText(replacement);
    step.endEditBlock();
    return count;
  }
  void MakeAllBold() override {
    QTextCursor all(edit_.document());
    all.select(QTextCursor::Document);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    all.mergeCharFormat(bold);
  }
  void Undo() override { edit_.undo(); }

 private:
  QTextCursor Find(const QString& needle, int from) const {
    return edit_.document()->find(needle, from, QTextDocument::FindCaseSensitively);
  }

  QTextEdit edit_;
};

}  // namespace

std::unique_ptr<Editor> MakeQt() { return std::make_unique<QtEditor>(); }

}  // namespace lumenote
