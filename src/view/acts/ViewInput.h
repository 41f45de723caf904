// Text composed with an input method.
#pragma once
#include <string>

#include "view/pane/NoteView.h"

namespace lumenote {

class ViewInput {
 public:
  explicit ViewInput(NoteView& view) : view_(view) {}

  /// One message of an input method.
  struct Message {
    Position replaceFrom = 0;  // counted from the caret
    Position replaceLength = 0;
    std::u16string committed{};  // typed in the place of what is replaced
    std::u16string composed{};   // shown at the caret after that
    int caret = 0;               // units from the start of `composed`
  };
  /// Nothing in a locked view. The view may be detached when it returns.
  void Take(const Message& message);

  /// The text around the caret that an input method is told of.
  Selection Surroundings() const;
  /// What it is told of a selection.
  Selection ToldSelection() const;

 private:
  void Replace(const Message& message);

  NoteView& view_;
};

}  // namespace lumenote
