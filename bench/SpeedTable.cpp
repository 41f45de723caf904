// bench_speed: one table of what the user waits for, in processor time: ours, the barest way to do
// the same work, and other editors, one after another in one process. Arguments: sizes in bytes.
#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <random>
#include <vector>

#include "Limits.h"
#include "Notes.h"
#include "Timing.h"
#include "backends/qt/toolkit/QtText.h"
#include "editors/Editor.h"
#include "editors/Stand.h"

using namespace lumenote;

namespace {

constexpr int kRounds = 3;
constexpr int kEdits = 1000;
constexpr int kTabs = 20'000;  // more than a view shows

struct Note {
  QString text;
  std::u16string units;
};

/// The typographic characters of the notes are replaced: every character is one of Latin-1.
Note MakeNote(int bytes) {
  const Document document = NoteDocument(NoteShape::Plain, bytes);
  std::u16string units = document.Text(0, document.Length());
  for (char16_t& c : units) c = c > 0xFF ? u'x' : c;
  return {ToQString(units), units};
}

const QString kNeedle = QStringLiteral("on");
const QString kReplacement = QStringLiteral("%%%");
const QString kNowhere = QStringLiteral("entomologie");

struct Row {
  const char* name;
  /// In milliseconds, on an editor that holds the note and has had the acts of the rows before.
  std::function<double(Stand&, const Note&)> measure;
  std::function<void(const Note&)> limit = {};
  QSize window = {1920, 1000};
};

std::function<double(Stand&, const Note&)> Simple(void (*act)(Editor&, const Note&)) {
  return [act](Stand& stand, const Note& note) {
    return Milliseconds([&] { act(stand.Act(), note); });
  };
}

std::function<double(Stand&, const Note&)> Key(Qt::Key key, const QString& text = {}) {
  return [=](Stand& stand, const Note&) {
    return stand.MedianToFrame([&] { stand.Press(key, text); });
  };
}

void InsertAtRandom(Editor& editor, const Note& note) {
  std::mt19937 random(1);
  for (int i = 0; i < kEdits; ++i)
    editor.Insert(static_cast<int>(random() % static_cast<unsigned>(note.units.size() / 2)), 'x');
}

void TypeInTheMiddle(Editor& editor, const Note& note) {
  const int middle = static_cast<int>(note.units.size() / 3);
  for (int i = 0; i < kEdits; ++i) editor.Insert(middle + i, "abcde "[i % 6]);
}

void CopyNote(const Note& note) { CopyToFreshMemory(note.units); }

void ScanNote(const Note& note) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = note.units.find(u"on", at)) != note.units.npos; at += 2) ++count;
  if (count == note.units.size()) std::puts("impossible");
}

void ReplaceInNote(const Note& note) { ReplaceByCopy(note.units, u"on", u"%%%"); }

double Resizing(Stand& stand, const Note&) {
  std::vector<double> times(Stand::kFrames);
  std::ranges::generate(times, [&] { return stand.NextWidth(); });
  return Median(times);
}

double Turn(Stand& stand, const Note&) {
  return stand.MedianToFrame([&] { stand.Turn(); });
}

double ReplaceAllWithInputMethod(Stand& stand, const Note&) {
  return stand.WithInputMethod([&] { stand.Act().ReplaceAll(kNeedle, kReplacement); });
}

/// In the middle of a note that is one paragraph of them.
double TypeAmongTabs(Stand& stand, const Note&) {
  stand.Act().Fill(QString(kTabs, QLatin1Char('\t')));
  stand.ToFrame([&] { stand.Act().PutCaret(kTabs / 2); });
  return stand.MedianToFrame([&] { stand.Press(Qt::Key_A, QStringLiteral("a")); });
}

std::vector<Row> Rows() {
  return {
      {"fill", Simple([](Editor& e, const Note& note) { e.Fill(note.text); }), CopyNote},
      {"first frame", [](Stand& s, const Note&) { return s.ToFrame([] {}); }},
      {"find all", Simple([](Editor& e, const Note&) { e.FindAll(kNeedle); }), ScanNote},
      {"find nothing", Simple([](Editor& e, const Note&) { e.FindAll(kNowhere); }), ScanNote},
      {"replace all", Simple([](Editor& e, const Note&) { e.ReplaceAll(kNeedle, kReplacement); }),
       ReplaceInNote},
      {"undo it", Simple([](Editor& e, const Note&) { e.Undo(); })},
      {"all bold", Simple([](Editor& e, const Note&) { e.MakeAllBold(); })},
      {"1,000 insertions at random", Simple(InsertAtRandom)},
      {"1,000 at one place", Simple(TypeInTheMiddle)},
      {"caret to the middle",
       [](Stand& s, const Note& note) {
         s.ToFrame([] {});  // what the edits left to be drawn
         return s.ToFrame([&] { s.Act().PutCaret(static_cast<int>(note.units.size() / 2)); });
       }},
      {"resize to frame", Resizing},
      {"keystroke to frame", Key(Qt::Key_A, QStringLiteral("a"))},
      {"Return to frame", Key(Qt::Key_Return, QStringLiteral("\r"))},
      {"Down to frame", Key(Qt::Key_Down)},
      {"wheel notch to frame", Turn},
      {"keystroke, 700 x 500", Key(Qt::Key_A, QStringLiteral("a")), {}, {700, 500}},
      {"Return, 700 x 500", Key(Qt::Key_Return, QStringLiteral("\r")), {}, {700, 500}},
      {"Down, 700 x 500", Key(Qt::Key_Down), {}, {700, 500}},
      {"wheel notch, 700 x 500", Turn, {}, {700, 500}},
      {"keystroke, 3840 x 2100", Key(Qt::Key_A, QStringLiteral("a")), {}, {3840, 2100}},
      {"Return, 3840 x 2100", Key(Qt::Key_Return, QStringLiteral("\r")), {}, {3840, 2100}},
      {"Down, 3840 x 2100", Key(Qt::Key_Down), {}, {3840, 2100}},
      {"wheel notch, 3840 x 2100", Turn, {}, {3840, 2100}},
      {"replace all, input method", ReplaceAllWithInputMethod},
      {"keystroke among tabs", TypeAmongTabs},
  };
}

/// The rounds go through the editors in turn, so that a change of the machine's speed meets all.
class Table {
 public:
  explicit Table(int bytes) : note_(MakeNote(bytes)) {
    for (auto make : {MakeOurs, MakeQt, MakeScintilla}) makers_.push_back(make);
    times_.resize(rows_.size(), std::vector<std::vector<double>>(makers_.size() + 1));
  }

  void Measure() {
    for (int round = 0; round < kRounds; ++round) {
      for (std::size_t editor = 0; editor < makers_.size(); ++editor)
        if (auto made = makers_[editor]()) MeasureEditor(std::move(made), editor);
      for (std::size_t row = 0; row < rows_.size(); ++row)
        if (rows_[row].limit)
          times_[row].back().push_back(Milliseconds([&] { rows_[row].limit(note_); }));
    }
  }
  void Print(int bytes) const {
    std::printf("\n%d bytes, milliseconds of processor time%s\n", bytes,
                "  (ratio: theirs to ours, above 1 where ours is faster)");
    std::printf("%-28s %9s %9s %18s %18s\n", "", "ours", "limit", "QTextEdit", "Scintilla");
    for (std::size_t row = 0; row < rows_.size(); ++row) PrintRow(row);
  }

 private:
  void MeasureEditor(std::unique_ptr<Editor> made, std::size_t editor) {
    Stand stand(std::move(made));
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      stand.Resize(rows_[row].window);
      times_[row][editor].push_back(rows_[row].measure(stand, note_));
    }
  }
  /// Empty where it is not measured.
  std::optional<double> TimeOf(std::size_t row, std::size_t column) const {
    const std::vector<double>& times = times_[row][column];
    return times.empty() ? std::nullopt : std::optional(Median(times));
  }
  void PrintRow(std::size_t row) const {
    const double ours = *TimeOf(row, 0);
    std::printf("%-28s %9.3f", rows_[row].name, ours);
    PrintTime(TimeOf(row, makers_.size()));
    for (std::size_t editor = 1; editor < makers_.size(); ++editor) {
      const std::optional<double> theirs = TimeOf(row, editor);
      PrintTime(theirs);
      if (theirs) std::printf(" (%6.2f)", *theirs / ours);
    }
    std::printf("\n");
  }
  static void PrintTime(std::optional<double> time) {
    if (time)
      std::printf(" %9.3f", *time);
    else
      std::printf(" %9s", "-");
  }

  Note note_;
  std::vector<Row> rows_ = Rows();
  std::vector<std::unique_ptr<Editor> (*)()> makers_;
  std::vector<std::vector<std::vector<double>>> times_;  // by row, then column; the limit is last
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  for (const QString& size : QApplication::arguments().mid(1)) {
    Table table(size.toInt());
    table.Measure();
    table.Print(size.toInt());
  }
}
