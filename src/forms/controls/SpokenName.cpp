#include "forms/controls/SpokenName.h"

#include "base/Strings.h"
#include "forms/Form.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"
#include "forms/controls/labels/StatusBar.h"
#include "forms/values/Captions.h"

namespace lumenote {

namespace {

std::u16string NameOfPlace(const Control& control) {
  const auto* frame = dynamic_cast<const Frame*>(&control.Parent());
  return frame && !frame->Caption().empty() ? WithoutMnemonic(frame->Caption())
                                            : control.Owner().Caption();
}

std::u16string TextsOf(const StatusBar& bar) {
  std::u16string texts;
  const auto add = [&](std::u16string_view text) {
    text = TrimSpaces(text);
    if (!text.empty()) (texts += texts.empty() ? u"" : u", ") += text;
  };
  for (int number = 1; number <= bar.Count(); ++number) add(bar.Panel(number));
  add(bar.SignTip());
  return texts;
}

}  // namespace

const Label* LabelOf(const Control& control) {
  if (!control.SpokenName().empty() || dynamic_cast<const CaptionedControl*>(&control))
    return nullptr;
  const Label* found = nullptr;
  for (const Control* other : control.Parent().Controls()) {
    if (other == &control) break;
    const auto* label = dynamic_cast<const Label*>(other);
    if (label && label->Style() == LabelStyle::Text && !label->Caption().empty()) found = label;
  }
  return found;
}

std::u16string SpokenNameOf(const Control& control) {
  if (!control.SpokenName().empty()) return control.SpokenName();
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
    return WithoutMnemonic(captioned->Caption());
  if (const auto* bar = dynamic_cast<const StatusBar*>(&control)) return TextsOf(*bar);
  const Label* label = LabelOf(control);
  return label ? WithoutMnemonic(label->Caption()) : NameOfPlace(control);
}

}  // namespace lumenote
