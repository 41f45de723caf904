#include "forms/controls/edits/ComboBox.h"

#include <algorithm>

#include "base/Numbers.h"
#include "forms/Form.h"
#include "lumenote/Platform.h"

namespace lumenote {

void ComboBox::List(std::vector<std::u16string> entries) {
  list_ = std::move(entries);
  index_ = -1;
  if (style_ == ComboStyle::ListOnly) line_.Text(u"");
  Changed(Property::List);
}

void ComboBox::AddItem(std::u16string entry) {
  list_.push_back(std::move(entry));
  Changed(Property::List);
}

void ComboBox::Choose(int index) {
  index_ = index;
  line_.Text(index < 0 ? u"" : std::u16string_view(list_[static_cast<std::size_t>(index)]));
  Changed(Property::Content);
}

void ComboBox::ListIndex(int index) {
  if (index < -1 || index >= static_cast<int>(list_.size()))
    throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (index == index_) return;
  Choose(index);
  if (Click) Owner().Raise(Click);
}

void ComboBox::Text(std::u16string_view text) {
  if (style_ == ComboStyle::ListOnly) {
    const auto entry = std::find(list_.begin(), list_.end(), text);
    return ListIndex(entry == list_.end() ? static_cast<int>(list_.size())
                                          : static_cast<int>(entry - list_.begin()));
  }
  const std::u16string before = Text();
  line_.Text(text);
  Settle(before);
}

void ComboBox::Settle(const std::u16string& before) {
  if (Text() == before) return;
  index_ = -1;
  Changed(Property::Content);
}

void ComboBox::UserPick(int index) {
  if (index < 0 || index >= static_cast<int>(list_.size()))
    throw RuntimeError(ErrorNumber::NoSuchElement);
  marked_.reset();
  Choose(index);
  if (Click) Owner().Raise(Click);
}

void ComboBox::UserDrop() {
  marked_.reset();
  if (DropDown) Owner().Raise(DropDown);
}

void ComboBox::UserType(std::u16string_view text) {
  if (style_ == ComboStyle::ListOnly) return;
  const std::u16string before = Text();
  line_.Type(text);
  Settle(before);
}

bool ComboBox::UserKey(const KeyStroke& key) {
  if (marked_) return KeyInList(key);
  if (key.name == KeyName::Down || key.name == KeyName::Up) {
    UserDrop();
    const auto entry = std::find(list_.begin(), list_.end(), Text());
    marked_ = entry == list_.end() ? -1 : static_cast<int>(entry - list_.begin());
    return true;
  }
  if (style_ == ComboStyle::ListOnly) return false;
  const std::u16string before = Text();
  const bool used = line_.Key(key, Owner().Machine().SystemClipboard());
  Settle(before);
  return used;
}

bool ComboBox::KeyInList(const KeyStroke& key) {
  const int step = key.name == KeyName::Down ? 1 : key.name == KeyName::Up ? -1 : 0;
  const int last = static_cast<int>(list_.size()) - 1;
  if (step != 0) {
    marked_ = std::min(std::max(*marked_ + step, 0), last);
    return true;
  }
  const int chosen = *marked_;
  if (key.name != KeyName::Return && key.name != KeyName::Escape) return false;
  marked_.reset();
  if (key.name == KeyName::Return && chosen >= 0 && chosen <= last) UserPick(chosen);
  return true;
}

void ComboBox::UserEdited(std::u16string_view text, Selection selected) {
  const std::u16string before = Text();
  line_.Text(text);
  line_.Select(selected.start, selected.end);
  Settle(before);
}

void ComboBox::Describe(MemberTable& members) {
  Control::Describe(members);
  members.Add(
      "Text", [this] { return Value(Text()); },
      [this](const Value& value) { Text(TextOf(value)); });
  members.Add(
      "ListIndex", [this] { return Value(ListIndex()); },
      [this](const Value& value) { ListIndex(ToInt32(NumberOf(value))); });
  members.Add("List", [this] { return Value(Value::Array(list_.begin(), list_.end())); });
}

}  // namespace lumenote
