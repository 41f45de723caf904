// Menu entries: those of the menu bar, of popup menus, and their submenus.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "forms/ShownElement.h"

namespace lumenote {

/// An entry; with children it is a submenu, with the caption "-" a separator. A top-level menu that
/// is not visible stays out of the bar and can still be popped up.
class Menu : public ShownElement {
 public:
  /// A top-level menu of the form.
  Menu(Form& form, std::string name, std::u16string caption, bool visible = true);
  /// An entry of another menu.
  Menu(Menu& parent, std::string name, std::u16string caption);

  const std::vector<Menu*>& Entries() const { return entries_; }
  bool IsSeparator() const { return caption_ == u"-"; }

  const std::u16string& Caption() const { return caption_; }
  void Caption(std::u16string_view text);
  bool Checked() const { return checked_; }
  void Checked(bool on);

  /// The entry was chosen, or, for a menu with entries, is about to open.
  std::function<void()> Click;

  /// The user's door; an entry that is disabled or hidden does nothing.
  void UserClick();
  /// Runs the opening event.
  void UserOpen();

  void Describe(MemberTable& members) override;

 private:
  std::vector<Menu*> entries_;
  std::u16string caption_;
  bool checked_ = false;
};

}  // namespace lumenote
