#include "forms/controls/SpokenName.h"

#include "forms/Form.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"
#include "forms/values/Captions.h"

namespace lumenote {

namespace {

const std::u16string* LabelBefore(const Control& control) {
  const std::u16string* found = nullptr;
  for (const Control* other : control.Parent().Controls()) {
    if (other == &control) break;
    const auto* label = dynamic_cast<const Label*>(other);
    if (label && label->Style() == LabelStyle::Text && !label->Caption().empty())
      found = &label->Caption();
  }
  return found;
}

std::u16string NameOfPlace(const Control& control) {
  const auto* frame = dynamic_cast<const Frame*>(&control.Parent());
  return frame && !frame->Caption().empty() ? WithoutMnemonic(frame->Caption())
                                            : control.Owner().Caption();
}

}  // namespace

std::u16string SpokenNameOf(const Control& control) {
  if (!control.SpokenName().empty()) return control.SpokenName();
  if (const auto* label = dynamic_cast<const Label*>(&control); label && label->Caption().empty())
    return label->ToolTip();
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
    return WithoutMnemonic(captioned->Caption());
  const std::u16string* label = LabelBefore(control);
  return label ? WithoutMnemonic(*label) : NameOfPlace(control);
}

}  // namespace lumenote
