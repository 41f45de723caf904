// A one-line edit box.
#pragma once
#include <functional>

#include "forms/Control.h"
#include "forms/controls/edits/LineText.h"

namespace lumenote {

/// A real change of the text raises Change, whatever caused it. `Locked` blocks edits by the user.
class TextBox : public Control {
 public:
  TextBox(Container& container, std::string name, Rect bounds, std::u16string_view text = {});

  const std::u16string& Text() const { return line_.Text(); }
  void Text(std::u16string_view text);
  Selection Selected() const { return line_.Selected(); }
  bool Locked() const { return locked_; }
  void Locked(bool on);
  bool TakesFocus() const override { return true; }

  std::function<void()> Change;

  /// User input. Typed keys arrive character by character; a native box reports its whole text and
  /// its selection.
  void UserType(std::u16string_view text) override;
  bool UserKey(const KeyStroke& key) override;
  void UserEdited(std::u16string_view text, Selection selected);

  void Describe(MemberTable& members) override;

 private:
  /// Raises Change if the text is no longer `before`.
  void Settle(const std::u16string& before);

  LineText line_;
  bool locked_ = false;
};

}  // namespace lumenote
