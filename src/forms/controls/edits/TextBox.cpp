#include "forms/controls/edits/TextBox.h"

#include "forms/Form.h"
#include "lumenote/Platform.h"

namespace lumenote {

TextBox::TextBox(Container& container, std::string name, Rect bounds, std::u16string_view text)
    : Control(container, std::move(name), bounds) {
  line_.Text(text);
}

void TextBox::Settle(const std::u16string& before) {
  if (Text() == before) return;
  Changed(Property::Content);
  if (Change) Owner().Raise(Change);
}

void TextBox::Text(std::u16string_view text) {
  const std::u16string before = Text();
  line_.Text(text);
  Settle(before);
}

void TextBox::Locked(bool on) {
  if (on == locked_) return;
  locked_ = on;
  Changed(Property::Locked);
}

void TextBox::UserType(std::u16string_view text) {
  if (locked_) return;
  const std::u16string before = Text();
  line_.Type(text);
  Settle(before);
}

bool TextBox::UserKey(const KeyStroke& key) {
  if (locked_) return false;
  const std::u16string before = Text();
  const bool used = line_.Key(key, Owner().Machine().SystemClipboard());
  Settle(before);
  return used;
}

void TextBox::UserEdited(std::u16string_view text, Selection selected) {
  const std::u16string before = Text();
  line_.Text(text);
  line_.Select(selected.start, selected.end);
  Settle(before);
}

void TextBox::Describe(MemberTable& members) {
  Control::Describe(members);
  members.Add(
      "Text", [this] { return Value(Text()); },
      [this](const Value& value) { Text(TextOf(value)); });
}

}  // namespace lumenote
