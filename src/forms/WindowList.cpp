#include "forms/WindowList.h"

#include <algorithm>

#include "forms/Form.h"

namespace lumenote {

Form* WindowList::TopModal() const {
  const auto top = std::find_if(loaded_.rbegin(), loaded_.rend(), [](const Form* form) {
    return form->IsModal() && form->Visible();
  });
  return top == loaded_.rend() ? nullptr : *top;
}

void WindowList::Leave(Form& form) {
  loaded_.erase(std::remove(loaded_.begin(), loaded_.end(), &form), loaded_.end());
  if (active_ == &form) active_ = nullptr;
}

bool WindowList::Activate(Form& form) {
  if (active_ == &form) return false;
  active_ = &form;
  return true;
}

Form* WindowList::Deactivate(const Form& form) {
  if (active_ != &form) return nullptr;
  active_ = nullptr;
  if (Form* owner = form.OwnerWindow(); owner && owner->Visible()) return owner;
  for (auto other = loaded_.rbegin(); other != loaded_.rend(); ++other)
    if (*other != &form && (*other)->Visible()) return *other;
  return nullptr;
}

}  // namespace lumenote
