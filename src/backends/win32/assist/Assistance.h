// What a view's window tells assistive programs.
#pragma once
#include <optional>

#include "backends/win32/assist/ViewLink.h"
#include "backends/win32/system/ComObject.h"

namespace lumenote {

class ViewElement;

/// Speaks to all kinds of them: through UI Automation, through the older interface, by the messages
/// of the system's own edit control, and by events.
class Assistance {
 public:
  /// `view` belongs to the object of `window`, and so does this.
  Assistance(HWND window, NoteView& view, ViewName name);
  ~Assistance();
  Assistance(const Assistance&) = delete;
  Assistance& operator=(const Assistance&) = delete;

  /// Nothing for a message that asks for nothing.
  std::optional<LRESULT> Answer(const Message& message);
  void TellChange() const;
  void TellSelection() const;
  /// The window goes.
  void End();

 private:
  LRESULT AnswerAutomation(const Message& message);
  void Raise(int event) const;

  HWND window_;
  NoteView& view_;
  ViewName name_;
  ComOwner<ViewElement> element_;  // once a program has asked for it
};

}  // namespace lumenote
