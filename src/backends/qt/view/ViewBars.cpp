#include "backends/qt/view/ViewBars.h"

#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "backends/qt/view/RichTextView.h"
#include "base/ScopedFlag.h"

namespace lumenote {

namespace {
constexpr int kBarlessHeight = 48;  // a lower box gets no scroll bars
constexpr double kMaxRange = 1e9;
}  // namespace

ViewBars::ViewBars(RichTextView& view) : view_(view) {
  constexpr int kStep = static_cast<int>(NoteView::kScrollStep);
  view.verticalScrollBar()->setSingleStep(kStep);
  view.horizontalScrollBar()->setSingleStep(kStep);
  QObject::connect(view.verticalScrollBar(), &QScrollBar::actionTriggered, &view,
                   [this](int action) { Step(action); });
}

void ViewBars::Choose(int height) {
  const auto policy = height < kBarlessHeight ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
  view_.setVerticalScrollBarPolicy(policy);
  view_.setHorizontalScrollBarPolicy(policy);
}

void ViewBars::Sync() {
  const ScopedFlag syncing(syncing_);
  SyncVertical();
  SyncHorizontal();
}

void ViewBars::SyncHorizontal() {
  QScrollBar* bar = view_.horizontalScrollBar();
  bar->setRange(0, static_cast<int>(view_.Pane().MostRight()));
  bar->setPageStep(view_.viewport()->width());
  bar->setValue(static_cast<int>(view_.Pane().ScrolledRight()));
}

// Changing a bar's range repaints the bar, which costs more than typing a character; so the range
// is kept unless the slider would move by a pixel.
void ViewBars::SyncVertical() {
  const ScrollModel::Scale scale = view_.Pane().Scroll().Read();
  QScrollBar* bar = view_.verticalScrollBar();
  const int page = view_.viewport()->height();
  const int most = static_cast<int>(std::clamp(std::ceil(scale.total - page), 0.0, kMaxRange));
  const bool differs = std::abs(most - bar->maximum()) * 2.0 * page > most;
  if (differs || bar->pageStep() != page) {
    bar->setPageStep(page);
    bar->setRange(0, most);
  }
  if (!bar->isSliderDown()) bar->setValue(static_cast<int>(std::lround(scale.value)));
}

void ViewBars::Follow(int dx, int dy) {
  if (syncing_) return;
  if (dx != 0) view_.Text().ScrollAcrossTo(view_.horizontalScrollBar()->value());
  if (dy != 0) view_.Text().ScrollTo(view_.verticalScrollBar()->value());
}

void ViewBars::Step(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
      view_.Text().ScrollBySteps(1);
      break;
    case QAbstractSlider::SliderSingleStepSub:
      view_.Text().ScrollBySteps(-1);
      break;
    case QAbstractSlider::SliderPageStepAdd:
      view_.Text().ScrollByPages(1);
      break;
    case QAbstractSlider::SliderPageStepSub:
      view_.Text().ScrollByPages(-1);
      break;
    default:
      return;
  }
  view_.verticalScrollBar()->setSliderPosition(view_.verticalScrollBar()->value());
}

void ViewBars::Turn(double x, double y) {
  QScrollBar* across = view_.horizontalScrollBar();
  if (x != 0) across->setValue(across->value() - static_cast<int>(std::lround(x)));
  if (y != 0) view_.Text().ScrollBy(-y);
}

}  // namespace lumenote
