// Text dragged out of a view.
#pragma once
#include <QDrag>
#include <QPointer>
#include <memory>
#include <optional>

#include "backends/qt/view/DropReceipt.h"
#include "base/Position.h"

namespace lumenote {

class RichTextView;

/// The text goes with the drag as it is when that begins. Moved to another program it is deleted
/// here when that program says that it has it, moved to another widget at once; within the view
/// the drop itself moves it. Where a desktop's programs do not say so, the text stays, and it stays
/// when it has been edited meanwhile.
class ViewDrag {
 public:
  explicit ViewDrag(RichTextView& view) : view_(view) {}

  /// Drags the selection until the button is released; the view may be gone then.
  void Run();

 private:
  void Finish(QDrag& drag, Selection range, int edits);
  void Moved(Selection range, int edits);

  RichTextView& view_;
  std::unique_ptr<DropReceipt> receipt_;  // of the latest drag
};

}  // namespace lumenote
