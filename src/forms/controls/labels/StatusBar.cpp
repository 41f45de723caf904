#include "forms/controls/labels/StatusBar.h"

#include "base/RuntimeError.h"

namespace lumenote {

StatusBar::StatusBar(Container& container, std::string name, int panels)
    : Control(container, std::move(name), {}), panels_(static_cast<std::size_t>(panels)) {}

const std::u16string& StatusBar::Panel(int number) const {
  if (number < 1 || number > Count()) throw RuntimeError(ErrorNumber::NoSuchElement);
  return panels_[static_cast<std::size_t>(number - 1)];
}

void StatusBar::Panel(int number, std::u16string_view text) {
  if (Panel(number) == text) return;
  panels_[static_cast<std::size_t>(number - 1)] = text;
  Changed(Property::Panels);
}

std::vector<std::u16string> StatusBar::ShownPanels() const {
  std::vector<std::u16string> shown = panels_;
  std::erase(shown, u"");
  return shown;
}

void StatusBar::Sign(StatusSign sign, std::u16string_view tip) {
  if (sign == sign_ && tip == signTip_) return;
  sign_ = sign;
  signTip_ = tip;
  Changed(Property::Sign);
}

void StatusBar::Describe(MemberTable& members) {
  Control::Describe(members);
  members.AddIndexed(
      "Panels", [this](int number) { return Value(Panel(number)); },
      [this](const Value& value, int number) { Panel(number, TextOf(value)); });
  members.Add("SignTip", [this] { return Value(SignTip()); });
}

}  // namespace lumenote
