// Text composed with an input method.
#pragma once
#include <string>

#include "view/pane/NoteView.h"

namespace lumenote {

class ViewInput {
 public:
  explicit ViewInput(NoteView& view) : view_(view) {}

  /// One event of an input method: replaces, then commits, then shows what is composed now.
  /// Whatever was composed before is gone.
  struct Message {
    Position replaceFrom = 0;  // relative to the caret
    Position replaceLength = 0;
    std::u16string committed{};  // replaces that range
    std::u16string composed{};   // then shown at the caret
    int caret = 0;               // units from the start of `composed`
  };
  /// Ignored if the view is locked. May detach the view.
  void Take(const Message& message);

  /// The range of text around the caret that an input method gets, within the caret's paragraph.
  Selection Surroundings() const;
  /// The selection, or only its start if it is long.
  Selection SelectedExcerpt() const;

 private:
  void Replace(const Message& message);

  NoteView& view_;
};

}  // namespace lumenote
