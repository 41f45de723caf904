// bench_frame: what the user waits for, in processor time. The first frame after a note of any size
// has been loaded, the time from a keystroke to the frame that shows it, the clean-up of a scanned
// page in a window. The arguments choose notes by a part of their names: "one/", "1m".
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

#include "Notes.h"
#include "ScannedPage.h"
#include "Timing.h"
#include "backends/qt/QtBackend.h"
#include "backends/qt/view/RichTextView.h"
#include "forms/Form.h"
#include "forms/controls/edits/RichTextBox.h"
#include "ocr/Cleanup.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"
#include "surface/Fakes.h"

using namespace lumenote;

namespace {

class CountingView final : public RichTextView {
 public:
  using RichTextView::RichTextView;
  int frames = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    RichTextView::paintEvent(event);
    ++frames;
  }
};

/// A line on either side of one picture.
std::string PictureNote(std::size_t bytes) {
  const std::string line(100, 'x');
  return "{\\rtf1 " + line + "{\\pict\\wmetafile8 " + std::string(bytes, '0') + "}" + line +
         "\\par}";
}

constexpr int kFormats = 1000;

/// A paragraph in which each letter has another format than the one before.
std::string LettersNote() {
  std::string rtf = "{\\rtf1";
  for (int i = 0; i < 20 * kFormats; ++i) {
    rtf += i % 2 == 0 ? "\\b " : "\\b0 ";
    rtf += "plant "[i % 6];
  }
  return rtf + "\\par}";
}

/// A paragraph of words in sizes that differ.
std::string SizesNote() {
  std::string rtf = "{\\rtf1";
  for (int i = 0; i < 2 * kFormats; ++i)
    rtf += "\\fs" + std::to_string(10 + i % kFormats) + " mot ";
  return rtf + "\\par}";
}

/// Words of several scripts, each in a font of its own.
std::string ScriptsNote() {
  constexpr const char* kWords[] = {"flos ",
                                    "\\u1094?\\u1074?\\u1077?\\u1090? ",
                                    "\\u945?\\u957?\\u952? ",
                                    "\\u1508?\\u1512?\\u1495? ",
                                    "\\u1586?\\u1607?\\u1585? ",
                                    "\\u33457? ",
                                    "\\u3603?\\u3629?\\u3585? "};
  std::string rtf = "{\\rtf1{\\fonttbl";
  for (int i = 0; i < 50; ++i)
    rtf += "{\\f" + std::to_string(i) + " Font " + std::to_string(i) + ";}";
  rtf += "}";
  for (int i = 0; i < 20 * kFormats; ++i)
    rtf += "\\f" + std::to_string(i % 50) + " " + kWords[i % std::size(kWords)] +
           (i % 40 == 39 ? "\\par " : "");
  return rtf + "\\par}";
}

/// A view of a note on a window that is shown.
class Desk {
 public:
  Desk() {
    view.resize(700, 600);
    view.show();
    view.setFocus();
    QApplication::processEvents();
  }

  /// Milliseconds from the act to the frame that shows it.
  template <class Action>
  double ToFrame(Action act) {
    const int before = view.frames;
    const std::clock_t start = std::clock();
    act();
    view.viewport()->update(0, 0, 1, 1);
    while (view.frames == before) QCoreApplication::sendPostedEvents();
    return Milliseconds(start);
  }

  void Load(const std::string& rtf) { surface.TextRTF(std::u16string(rtf.begin(), rtf.end())); }
  void Press(Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&view, &press);
  }
  void PutCaret(Position at) {
    ToFrame([&] { surface.UserSelect(at, at); });
  }
  /// The median over loading it several times.
  double FirstFrame(const std::string& rtf) {
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
      ToFrame([&] { Load(PictureNote(10)); });
      Load(rtf);
      times.push_back(ToFrame([] {}));
    }
    return Median(times);
  }
  /// The median over typing a word and a half at a place.
  double Typing(Position at) {
    PutCaret(at);
    std::vector<double> times;
    for (int i = 0; i < 40; ++i)
      times.push_back(ToFrame([&] { Press(Qt::Key_A, QStringLiteral("a")); }));
    return Median(times);
  }
  /// The longest of those of a caret key at several places in the last part of the note.
  double CaretKey(Qt::Key key) {
    const Position length = surface.Content().Length();
    double longest = 0;
    for (int i = 1; i <= 9; ++i) {
      PutCaret(length - i * (length / 100));
      longest = std::max(longest, ToFrame([&] { Press(key); }));
    }
    return longest;
  }

  /// The median over steps of the scroll bar, as turns of the wheel are.
  double Scrolling(Position at) {
    PutCaret(at);
    std::vector<double> times;
    for (int i = 0; i < 40; ++i)
      times.push_back(ToFrame([&] {
        view.verticalScrollBar()->triggerAction(i % 2 ? QAbstractSlider::SliderSingleStepAdd
                                                      : QAbstractSlider::SliderSingleStepSub);
      }));
    return Median(times);
  }
  /// A copy of the note is written to a file in slices, as the recovery copy is, with a key after
  /// each: the longest slice, beginning and end included, and the longest time of a key.
  std::pair<double, double> KeysWhileCopying(Position at) {
    constexpr double kSlice = 2;  // milliseconds
    PutCaret(at);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    const auto sink = [&](std::string_view bytes) {
      std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    };
    std::pair<double, double> longest;
    std::unique_ptr<SnapshotWriter> writing;
    for (bool more = true; more;) {
      const std::clock_t start = std::clock();
      if (!writing) writing = surface.WriteSnapshot(FileType::Rtf, sink);
      while (more && Milliseconds(start) < kSlice) more = writing->Step();
      if (!more) writing.reset();
      longest.first = std::max(longest.first, Milliseconds(start));
      const double key = ToFrame([&] { Press(Qt::Key_A, QStringLiteral("a")); });
      longest.second = std::max(longest.second, key);
    }
    return longest;
  }

  MemoryClipboard clipboard;
  MemoryFiles files;
  QtLayouter layouter;
  PieceBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
  CountingView view{surface, layouter, {}, nullptr};
};

void Measure(const std::string& rtf, const std::string& name) {
  Desk desk;
  const double first = desk.FirstFrame(rtf);
  const Position length = desk.surface.Content().Length();
  const double top = desk.Typing(length < 200 ? 0 : 150);
  const double middle = desk.Typing(length / 2);
  const double end = desk.Typing(desk.surface.Content().Length());
  const double up = desk.CaretKey(Qt::Key_Up);
  const double page = desk.CaretKey(Qt::Key_PageUp);
  const double scroll = length > 5000 ? desk.Scrolling(length / 3) : 0;
  const auto [slice, key] = desk.KeysWhileCopying(length / 2);
  std::printf("%-12s %11.2f %15.3f %11.3f %8.3f %10.2f %8.2f %8.3f %8.2f %8.2f\n", name.c_str(),
              first, top, middle, end, up, page, scroll, slice, key);
}

/// On a window that is shown, up to the frame that shows the page as it is then.
double CleanUp() {
  FolderSandbox sandbox;
  QtBackend backend;
  const ReportedFonts fonts;
  PilotPlatform platform(sandbox, backend, fonts);
  WindowList windows{platform};
  Form form(windows, "Note", {1500, 1500, 6000, 4500}, u"");
  RichTextBox box(form, "box", {30, 270, 5640, 3200});
  sandbox.FileSystem().Write(kCorrectionsPath, Corrections());
  box.Surface().Text(ScannedPage());
  form.Show();
  QApplication::processEvents();
  const std::clock_t start = std::clock();
  NettoyerTexte(box.Surface(), sandbox.FileSystem(), kCorrectionsPath);
  QApplication::processEvents();
  const double taken = Milliseconds(start);
  form.Unload();
  return taken;
}

bool IsAsked(const QStringList& parts, const std::string& name) {
  const auto in = [&](const QString& part) { return QString::fromStdString(name).contains(part); };
  return parts.isEmpty() || std::any_of(parts.begin(), parts.end(), in);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::vector<double> cleanUps;
  for (int i = 0; i < 9; ++i) cleanUps.push_back(CleanUp());
  std::printf(
      "milliseconds of processor time: medians, of the caret keys, and of a copy's slices\nand the "
      "keys between them, the longest\n");
  std::printf("clean-up of a page, 500 pairs, in a window: %.1f\n\n", Median(cleanUps));
  std::printf("%-12s %11s %15s %11s %8s %10s %8s %8s %8s %8s\n", "note", "first frame",
              "key at the top", "the middle", "the end", "up key", "page up", "scroll", "a slice",
              "its key");
  const QStringList parts = QApplication::arguments().mid(1);
  ForEachNote([&](NoteShape shape, int bytes, const std::string& name) {
    if (IsAsked(parts, name)) Measure(NoteSource(shape, bytes), name);
  });
  if (IsAsked(parts, "letters/20k")) Measure(LettersNote(), "letters/20k");
  if (IsAsked(parts, "sizes/1k")) Measure(SizesNote(), "sizes/1k");
  if (IsAsked(parts, "scripts/100k")) Measure(ScriptsNote(), "scripts/100k");
  if (IsAsked(parts, "picture/20m")) Measure(PictureNote(20'000'000), "picture/20m");
}
