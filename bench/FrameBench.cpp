// bench_frame: what the user waits for. The first frame after a note of any size has been loaded,
// and the time from a keystroke to the frame that shows it, on generated notes.
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "Notes.h"
#include "backends/qt/QtBreaker.h"
#include "backends/qt/RichTextView.h"
#include "surface/Fakes.h"

using namespace lumenote;

namespace {

using Clock = std::chrono::steady_clock;

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
    const auto start = Clock::now();
    act();
    while (view.frames == before) QCoreApplication::sendPostedEvents();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  }

  void Load(const std::string& rtf) { surface.TextRTF(std::u16string(rtf.begin(), rtf.end())); }
  void PressKey() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QApplication::sendEvent(&view, &press);
  }
  /// The median over typing a word and a half at a place.
  double Keystroke(Position at) {
    ToFrame([&] { surface.UserSelect(at, at); });
    std::vector<double> times;
    for (int i = 0; i < 40; ++i) times.push_back(ToFrame([&] { PressKey(); }));
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
  }

  MemoryClipboard clipboard;
  MemoryFiles files;
  TextLayouter layouter;
  QtBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
  CountingView view{surface, layouter, ViewDoors{}, nullptr};
};

void Measure(NoteShape shape, int bytes, const std::string& name) {
  Desk desk;
  desk.ToFrame([&] { desk.Load(RtfNote(NoteShape::Plain, 1000)); });  // fonts
  const std::string& rtf = RtfNote(shape, bytes);
  desk.Load(rtf);
  const double first = desk.ToFrame([] {});
  const Position length = desk.surface.Content().Length();
  const double top = desk.Keystroke(length < 200 ? 0 : 150);
  const double middle = desk.Keystroke(length / 2);
  const double end = desk.Keystroke(desk.surface.Content().Length());
  std::printf(
      "%-12s first frame %6.2f ms   keystroke at the top %6.3f, middle %6.3f, end %6.3f ms\n",
      name.c_str(), first, top, middle, end);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  ForEachNote(Measure);
}
