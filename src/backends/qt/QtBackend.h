// The forms on Qt widgets.
#pragma once
#include <QTimer>
#include <memory>
#include <unordered_map>
#include <vector>

#include "backends/qt/QtTimers.h"
#include "backends/qt/text/QtLayouter.h"
#include "backends/qt/toolkit/WidgetRegistry.h"
#include "backends/qt/windows/QtFormPeer.h"
#include "forms/Backend.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

/// Needs a QApplication, and outlives the windows.
class QtBackend final : public Backend, private PeerServices {
 public:
  QtBackend();

  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) override;
  void Print(RichTextBox& note, std::u16string_view title, Form& over) override;
  void RunUntil(const std::function<bool()>& done) override;
  bool IsTopmost(const Form& form) override;
  void Arm(Timer& timer) override { timers_.Arm(timer); }
  void Disarm(Timer& timer) override { timers_.Disarm(timer); }

  /// The window, widget or action that shows an element.
  WidgetRegistry& Widgets() override { return widgets_; }
  void Used(Form& form) override;

  /// Windows opened from now on check their words by it; null: they do not. It must outlive them.
  void CheckSpelling(Speller* speller) { speller_ = speller; }

  /// Closes the remaining windows as the user would, the latest first; abandons those that refuse.
  void CloseForms();

 private:
  struct SurfaceLayout {
    QtLayouter layouter;
    PieceBreaker breaker{layouter};
  };

  QtLayouter& LayouterOf(const Control& box) override { return layouts_.at(&box)->layouter; }
  Speller* SpellerOf(const RichTextBox& box) override;
  /// The owner of a box that `over` asks for; null for none.
  QWidget* DialogParent(const Form* over) const;
  void NativelyActive(Form& form) override;
  void Activating(Form& form) override;
  void EndAwaiting();
  void SessionEnds();
  void Refused(Form& form) override;
  void Gone(Form& form) override;

  WidgetRegistry widgets_;
  QtTimers timers_;
  Speller* speller_ = nullptr;
  // By address: a new box may replace a destroyed one.
  std::unordered_map<const Control*, std::unique_ptr<SurfaceLayout>> layouts_;
  std::vector<Form*> forms_;            // with a window, in the order of realising
  Form* awaited_ = nullptr;             // activation requested, not confirmed yet
  Form* activatedMeanwhile_ = nullptr;  // the last one activated in the meantime
  QTimer awaiting_;
  bool sessionEnds_ = false;  // the desktop has asked for what is unsaved
};

}  // namespace lumenote
