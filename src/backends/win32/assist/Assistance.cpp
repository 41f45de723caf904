#include "backends/win32/assist/Assistance.h"

#include "backends/win32/assist/EditMessages.h"
#include "backends/win32/assist/UiaCore.h"
#include "backends/win32/assist/ViewAccessible.h"
#include "backends/win32/assist/ViewElement.h"

namespace lumenote {

Assistance::Assistance(HWND window, NoteView& view, ViewName name)
    : window_(window), view_(view), name_(std::move(name)) {}

Assistance::~Assistance() { End(); }

std::optional<LRESULT> Assistance::Answer(const Message& message) {
  if (message.id != WM_GETOBJECT) return AnswerEdit(view_, message);
  switch (static_cast<LONG>(message.l)) {
    case OBJID_CLIENT:
      return AnswerAccessible({window_, view_, name_}, message.w);
    case uia::kRootObject:
      return AnswerAutomation(message);
  }
  return std::nullopt;
}

LRESULT Assistance::AnswerAutomation(const Message& message) {
  if (!element_) element_.reset(new ViewElement({window_, view_, name_}));
  return uia::Return(window_, message.w, message.l, element_.get());
}

void Assistance::Raise(int event) const {
  if (element_ && uia::IsHeard()) uia::Raise(element_.get(), event);
}

void Assistance::TellChange() const {
  NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window_, OBJID_CLIENT, CHILDID_SELF);
  Raise(uia::kTextChanged);
}

void Assistance::TellSelection() const {
  NotifyWinEvent(EVENT_OBJECT_TEXTSELECTIONCHANGED, window_, OBJID_CLIENT, CHILDID_SELF);
  Raise(uia::kSelectionChanged);
}

void Assistance::End() {
  if (!element_) return;
  uia::Return(window_, 0, 0, nullptr);
  element_.reset();
}

}  // namespace lumenote
