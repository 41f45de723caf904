#include "backends/win32/windows/keys/KeyNavigation.h"

#include <algorithm>
#include <vector>

#include "base/Characters.h"
#include "forms/CaptionedControl.h"
#include "forms/Menu.h"

namespace lumenote {
namespace {

/// All usable controls, inner ones after their container.
void Collect(const Container& container, std::vector<Control*>& order) {
  for (Control* control : container.Controls()) {
    if (!control->Visible() || !control->Enabled()) continue;
    order.push_back(control);
    if (const auto* inner = dynamic_cast<const Container*>(control)) Collect(*inner, order);
  }
}

std::vector<Control*> UsableControls(Form& form) {
  std::vector<Control*> order;
  Collect(form, order);
  return order;
}

/// The element after (before) one in a circle; null if there is no other.
template <class Kind>
Kind* Neighbour(const std::vector<Kind*>& circle, const Kind* from, bool forward) {
  const auto size = circle.size();
  const auto place = static_cast<std::size_t>(std::ranges::find(circle, from) - circle.begin());
  if (size == 0 || (size == 1 && place == 0)) return nullptr;
  if (place == size) return forward ? circle.front() : circle.back();
  return circle[(place + (forward ? 1 : size - 1)) % size];
}

/// The character behind a single ampersand, in lower case; 0 for none.
char16_t MnemonicOf(std::u16string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != u'&') continue;
    if (caption[i + 1] != u'&') return ToLower(caption[i + 1]);
    ++i;
  }
  return 0;
}

bool Marks(std::u16string_view caption, char16_t character) {
  return character != 0 && MnemonicOf(caption) == ToLower(character);
}

}  // namespace

Control* NextInTabOrder(Form& form, const Control* from, bool forward) {
  std::vector<Control*> order = UsableControls(form);
  std::erase_if(order,
                [&](const Control* control) { return !control->TakesFocus() && control != from; });
  return Neighbour(order, from, forward);
}

OptionButton* NextOption(const OptionButton& from, bool forward) {
  std::vector<OptionButton*> options;
  for (Control* control : from.Parent().Controls())
    if (auto* option = dynamic_cast<OptionButton*>(control);
        option && option->Visible() && option->Enabled())
      options.push_back(option);
  return Neighbour<OptionButton>(options, &from, forward);
}

Menu* NextMenu(Form& form, const Menu* from, bool forward) {
  std::vector<Menu*> menus = form.Menus();
  std::erase_if(menus, [](const Menu* menu) { return !menu->Visible() || !menu->Enabled(); });
  return Neighbour<Menu>(menus, from, forward);
}

Element* WithMnemonic(Form& form, char16_t character) {
  for (Control* control : UsableControls(form))
    if (const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
        captioned && Marks(captioned->Caption(), character))
      return control;
  return MenuWithMnemonic(form, character);
}

Menu* MenuWithMnemonic(Form& form, char16_t character) {
  for (Menu* menu : form.Menus())
    if (menu->Visible() && menu->Enabled() && Marks(menu->Caption(), character)) return menu;
  return nullptr;
}

Control* FocusFor(Form& form, Control& marked) {
  if (marked.TakesFocus()) return &marked;
  const std::vector<Control*> order = UsableControls(form);
  const auto next = std::find_if(std::ranges::find(order, &marked), order.end(),
                                 [](const Control* control) { return control->TakesFocus(); });
  return next == order.end() ? nullptr : *next;
}

}  // namespace lumenote
