#include "forms/controls/edits/ViewCallbacks.h"

#include "forms/Form.h"
#include "forms/controls/SpokenName.h"
#include "forms/controls/edits/RichTextBox.h"

namespace lumenote {

ViewCallbacks CallbacksOf(RichTextBox& box) {
  return {.act = [&box](const std::function<void()>& act) { box.Owner().Raise(act); },
          .mouseUp = [&box](const MouseEvent& event) { box.UserMouseUp(event); },
          .locked = [&box] { return box.Locked(); },
          .link = [&box](std::u16string_view address) { box.UserOpenLink(address); },
          .tabLeaves = [&box] { return box.TabLeaves(); },
          .name = [&box] { return SpokenNameOf(box); }};
}

}  // namespace lumenote
