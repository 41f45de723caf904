#include "forms/controls/edits/RichTextBox.h"

#include "document/Links.h"
#include "forms/Form.h"
#include "forms/controls/edits/SurfaceMembers.h"
#include "lumenote/Platform.h"
#include "platform/Processes.h"

namespace lumenote {

RichTextBox::RichTextBox(Container& container, std::string name, Rect bounds)
    : Control(container, std::move(name), bounds) {
  Platform& machine = Owner().Machine();
  surface_ = machine.Windows().MakeSurface(*this, machine.SystemClipboard(), machine.FileSystem());
  surface_->OnChange([this] {
    if (Change) Owner().Raise(Change);
  });
}

RichTextBox::~RichTextBox() { Withdraw(); }

void RichTextBox::UserOpenLink(std::u16string_view address) {
  if (MayOpen(address)) Owner().Machine().Programs().Open(address);
}

void RichTextBox::Describe(MemberTable& members) {
  Control::Describe(members);
  DescribeSurface(*surface_, members);
}

}  // namespace lumenote
