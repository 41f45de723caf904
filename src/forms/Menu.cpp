#include "forms/Menu.h"

#include "base/Strings.h"
#include "forms/Form.h"

namespace lumenote {

Menu::Menu(Form& form, std::string name, std::u16string caption, bool visible)
    : ShownElement(form, std::move(name)), caption_(std::move(caption)) {
  Register();
  Visible(visible);
  form.menus_.push_back(this);
}

Menu::Menu(Menu& parent, std::string name, std::u16string caption, std::u16string shortcut)
    : ShownElement(parent.Owner(), std::move(name)),
      caption_(std::move(caption)),
      shortcut_(std::move(shortcut)) {
  Register();
  parent.entries_.push_back(this);
}

void Menu::Caption(std::u16string_view text) {
  if (text == caption_) return;
  caption_ = text;
  Changed(Property::Caption);
}

std::u16string Menu::ShownText() const {
  if (shortcut_.empty()) return caption_;
  return caption_ + u'\t' + ReplaceEvery(shortcut_, u"Shift", u"Maj");
}

void Menu::Checked(bool on) {
  if (on == checked_) return;
  checked_ = on;
  Changed(Property::Checked);
}

// Leaving the bar may hide it, and the entry with it.
void Menu::UserClick() {
  if (!Enabled() || !Visible()) return;
  Owner().LeaveMenuBar();
  UserOpen();
}

void Menu::UserOpen() {
  const Form::InUse use(Owner());
  Owner().CompleteComposition();
  if (Click) Owner().Raise(Click);
}

void Menu::Describe(MemberTable& members) {
  ShownElement::Describe(members);
  members.Add(
      "Caption", [this] { return Value(Caption()); },
      [this](const Value& value) { Caption(TextOf(value)); });
  members.Add(
      "Checked", [this] { return Value(Checked()); },
      [this](const Value& value) { Checked(BooleanOf(value)); });
  members.Add("List", [this] {
    Value::Array names;
    for (const Menu* entry : entries_) names.emplace_back(FromUtf8(entry->Name()));
    return Value(std::move(names));
  });
}

}  // namespace lumenote
