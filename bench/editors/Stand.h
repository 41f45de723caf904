// An editor on a window that is shown, and the user before it.
#pragma once
#include <QApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <vector>

#include "../Timing.h"
#include "Editor.h"

namespace lumenote {

/// Counts the frames of a widget.
class FrameCounter final : public QObject {
 public:
  explicit FrameCounter(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    frames += event->type() == QEvent::Paint;
    return false;
  }
  int frames = 0;
};

/// An editor on a window that is shown.
class Stand {
 public:
  static constexpr int kFrames = 15;

  explicit Stand(std::unique_ptr<Editor> editor)
      : editor_(std::move(editor)), counter_(*editor_->Widget().viewport()) {
    editor_->Widget().resize(1920, 1000);
    editor_->Widget().show();
    editor_->Widget().setFocus();
    QApplication::processEvents();
  }

  Editor& Act() { return *editor_; }
  /// Milliseconds from the act to the end of the frame that shows it.
  double ToFrame(const std::function<void()>& act) {
    return Milliseconds([&] {
      const int before = counter_.frames;
      act();
      editor_->Widget().viewport()->update(0, 0, 1, 1);
      while (counter_.frames == before) QApplication::processEvents();
    });
  }
  /// Over `kFrames` times.
  double MedianToFrame(const std::function<void()>& act) {
    std::vector<double> times;
    for (int i = 0; i < kFrames; ++i) times.push_back(ToFrame(act));
    return Median(times);
  }
  void Press(Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&editor_->Widget(), &press);
  }
  /// In pixels; once it returns the note is shown at this size.
  void Resize(QSize window) {
    if (editor_->Widget().size() == window) return;
    editor_->Widget().resize(window);
    ToFrame([] {});
  }
  /// To the frame, between two widths.
  double NextWidth() {
    wide_ = !wide_;
    return ToFrame([&] { editor_->Widget().resize(wide_ ? 1920 : 1900, 1000); });
  }
  /// Milliseconds of the act before an input method that asks where the caret is whenever it is
  /// told that this may have changed, as those of desktops do.
  double WithInputMethod(const std::function<void()>& act) {
    QInputMethod& method = *QGuiApplication::inputMethod();
    const auto attached = QObject::connect(&method, &QInputMethod::cursorRectangleChanged,
                                           &counter_, [&] { method.cursorRectangle(); });
    const double taken = Milliseconds(act);
    QObject::disconnect(attached);
    return taken;
  }
  void Turn() {
    const QPointF at(50, 50);
    QWheelEvent turn(at, editor_->Widget().mapToGlobal(at), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(editor_->Widget().viewport(), &turn);
  }

 private:
  std::unique_ptr<Editor> editor_;
  FrameCounter counter_;
  bool wide_ = true;
};

}  // namespace lumenote
