// Scintilla by its Qt port; characters are bytes of Latin-1.
#include <Qsci/qsciscintilla.h>

#include "Editor.h"

namespace lumenote {
namespace {

class Scintilla final : public Editor {
 public:
  Scintilla() {
    edit_.setUtf8(false);
    edit_.setWrapMode(QsciScintilla::WrapWord);
  }

  QAbstractScrollArea& Widget() override { return edit_; }
  void Fill(const QString& text) override {
    edit_.setText(text);
    edit_.SendScintilla(QsciScintilla::SCI_EMPTYUNDOBUFFER);
  }
  void PutCaret(int at) override { edit_.SendScintilla(QsciScintilla::SCI_GOTOPOS, at); }
  void Insert(int at, char letter) override {
    const char text[] = {letter, '\0'};
    edit_.SendScintilla(QsciScintilla::SCI_INSERTTEXT, at, text);
  }
  int FindAll(const QString& needle) override {
    const QByteArray sought = needle.toLatin1();
    int count = 0;
    for (long from = 0; Find(sought, from); ++count)
      from = edit_.SendScintilla(QsciScintilla::SCI_GETTARGETEND);
    return count;
  }
  int ReplaceAll(const QString& needle, const QString& replacement) override {
    const QByteArray sought = needle.toLatin1();
    const QByteArray text = replacement.toLatin1();
    edit_.beginUndoAction();
    int count = 0;
    for (long from = 0; Find(sought, from); ++count) {
      edit_.SendScintilla(QsciScintilla::SCI_REPLACETARGET, text.size(), text.constData());
      from = edit_.SendScintilla(QsciScintilla::SCI_GETTARGETEND);
    }
    edit_.endUndoAction();
    return count;
  }
  void MakeAllBold() override {
    edit_.SendScintilla(QsciScintilla::SCI_STYLESETBOLD, kBoldStyle, 1L);
    edit_.SendScintilla(QsciScintilla::SCI_STARTSTYLING, 0, 0L);
    edit_.SendScintilla(QsciScintilla::SCI_SETSTYLING, static_cast<unsigned long>(edit_.length()),
                        long{kBoldStyle});
  }
  void Undo() override { edit_.undo(); }

 private:
  static constexpr int kBoldStyle = 1;

  bool Find(const QByteArray& needle, long from) {
    edit_.SendScintilla(QsciScintilla::SCI_SETSEARCHFLAGS, QsciScintilla::SCFIND_MATCHCASE);
    edit_.SendScintilla(QsciScintilla::SCI_SETTARGETSTART, static_cast<unsigned long>(from));
    edit_.SendScintilla(QsciScintilla::SCI_SETTARGETEND,
                        static_cast<unsigned long>(edit_.length()));
    return edit_.SendScintilla(QsciScintilla::SCI_SEARCHINTARGET,
                               static_cast<unsigned long>(needle.size()), needle.constData()) >= 0;
  }

  QsciScintilla edit_;
};

}  // namespace

std::unique_ptr<Editor> MakeScintilla() { return std::make_unique<Scintilla>(); }

}  // namespace lumenote
