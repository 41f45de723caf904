// A drop-down list; its box shows the chosen entry or typed text.
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/controls/edits/LineText.h"

namespace lumenote {

enum class ComboStyle { Editable, ListOnly };

/// `ListIndex` is -1 while no entry is chosen. A real change of the index raises Click, whatever
/// changed it. Assigning the text is silent and chooses nothing, except in a list without editing,
/// where it chooses the entry. Up and Down open the list with the text's entry highlighted and move
/// the highlight; Return chooses it, Escape cancels.
class ComboBox : public Control {
 public:
  ComboBox(Container& container, std::string name, Rect bounds,
           ComboStyle style = ComboStyle::Editable)
      : Control(container, std::move(name), bounds), style_(style) {}

  ComboStyle Style() const { return style_; }
  const std::vector<std::u16string>& List() const { return list_; }
  /// Replaces the entries and clears the choice; editable text stays.
  void List(std::vector<std::u16string> entries);
  void AddItem(std::u16string entry);
  int ListIndex() const { return index_; }
  /// Raises InvalidPropertyValue (380) for an index other than -1 or an entry's.
  void ListIndex(int index);
  const std::u16string& Text() const { return line_.Text(); }
  /// In a list without editing raises InvalidPropertyValue (380) for a text that is no entry.
  void Text(std::u16string_view text);
  bool TakesFocus() const override { return true; }

  std::function<void()> DropDown;

  /// User input: an entry chosen (raises Click even for the current one), the list opened, a text
  /// typed.
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
  std::optional<int> marked_;  // highlighted in the list that a key opened
};

}  // namespace lumenote
