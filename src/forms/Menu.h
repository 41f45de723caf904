// Menu entries of menu bars, popup menus and submenus.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "forms/ShownElement.h"

namespace lumenote {

/// An entry; one with children is a submenu, and one with the caption "-" a separator. An invisible
/// top-level menu is not in the bar but can be opened as a popup.
class Menu : public ShownElement {
 public:
  /// Creates a top-level menu.
  Menu(Form& form, std::string name, std::u16string caption, bool visible = true);
  /// Creates an entry of another menu. `shortcut` is a key of the same purpose ("Ctrl+S"), which is
  /// only shown.
  Menu(Menu& parent, std::string name, std::u16string caption, std::u16string shortcut = {});

  const std::vector<Menu*>& Entries() const { return entries_; }
  bool IsSeparator() const { return caption_ == u"-"; }

  const std::u16string& Caption() const { return caption_; }
  void Caption(std::u16string_view text);
  const std::u16string& Shortcut() const { return shortcut_; }
  /// The caption, and behind a tab the shortcut as French keyboards name it.
  std::u16string ShownText() const;
  bool Checked() const { return checked_; }
  void Checked(bool on);

  /// The entry was chosen, or a menu with entries is about to open.
  std::function<void()> Click;

  /// User input; ignored if the entry is disabled or hidden.
  void UserClick();
  /// Raises the opening event.
  void UserOpen();

  void Describe(MemberTable& members) override;

 private:
  std::vector<Menu*> entries_;
  std::u16string caption_;
  std::u16string shortcut_;
  bool checked_ = false;
};

}  // namespace lumenote
