// A box for one line of text.
#pragma once
#include <functional>

#include "forms/Control.h"
#include "forms/controls/LineText.h"

namespace lumenote {

/// A real change of the text raises Change, whoever made it. `Locked` keeps the user from editing.
class TextBox : public Control {
 public:
  TextBox(Container& container, std::string name, Rect place, std::u16string_view text = {});

  const std::u16string& Text() const { return line_.Text(); }
  void Text(std::u16string_view text);
  Selection Selected() const { return line_.Selected(); }
  bool Locked() const { return locked_; }
  void Locked(bool on);
  bool TakesFocus() const override { return true; }

  std::function<void()> Change;

  /// The user's door. Typing comes one key a character; a native box reports its whole text and
  /// where its selection stands.
  void UserType(std::u16string_view text) override;
  bool UserKey(const KeyStroke& key) override;
  void UserEdited(std::u16string_view text, Selection selected);

  void Describe(MemberTable& members) override;

 private:
  /// Tells of the change since the text was `before`.
  void Settle(const std::u16string& before);

  LineText line_;
  bool locked_ = false;
};

}  // namespace lumenote
