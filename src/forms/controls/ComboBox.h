// A drop-down list with the chosen entry, or a typed text, in its box.
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/controls/LineText.h"

namespace lumenote {

enum class ComboStyle { Editable, ListOnly };

/// `ListIndex` is -1 while the text is no entry's choice. A real change of the index raises Click,
/// whoever made it; assigning the text chooses nothing and is silent,
/// but in a list that cannot be edited it chooses the entry. Of the keys Up and Down drop the list
/// down, where the text's entry is marked, and move the mark; Return chooses, Escape does not.
class ComboBox : public Control {
 public:
  ComboBox(Container& container, std::string name, Rect place,
           ComboStyle style = ComboStyle::Editable)
      : Control(container, std::move(name), place), style_(style) {}

  ComboStyle Style() const { return style_; }
  const std::vector<std::u16string>& List() const { return list_; }
  /// Replaces the entries; nothing is chosen, a text that can be edited stays.
  void List(std::vector<std::u16string> entries);
  void AddItem(std::u16string entry);
  int ListIndex() const { return index_; }
  /// Raises InvalidPropertyValue (380) for an index that is neither -1 nor an entry's.
  void ListIndex(int index);
  const std::u16string& Text() const { return line_.Text(); }
  /// Raises InvalidPropertyValue (380) for no entry of a list that cannot be edited.
  void Text(std::u16string_view text);
  bool TakesFocus() const override { return true; }

  std::function<void()> DropDown;

  /// The user's door: the chosen entry (Click comes even for the one already shown), the list
  /// dropped down, a text typed.
  void UserPick(int index);
  void UserDrop();
  void UserType(std::u16string_view text) override;
  bool UserKey(const KeyStroke& key) override;
  void UserEdited(std::u16string_view text, Selection selected);

  void Describe(MemberTable& members) override;

 private:
  void Choose(int index);
  bool KeyInList(const KeyStroke& key);
  void Settle(const std::u16string& before);

  ComboStyle style_;
  std::vector<std::u16string> list_;
  LineText line_;
  int index_ = -1;
  std::optional<int> marked_;  // in the list that a key has dropped down
};

}  // namespace lumenote
