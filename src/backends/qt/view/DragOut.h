// Text dragged out of a view through the toolkit.
#pragma once
#include <QDrag>
#include <memory>

#include "backends/qt/view/DropReceipt.h"
#include "view/acts/TextDrag.h"

namespace lumenote {

class RichTextView;

/// Text moved to another program is deleted here when that program says that it has it, moved to
/// another widget at once. Where a desktop's programs do not say so, the text stays.
class DragOut {
 public:
  explicit DragOut(RichTextView& view) : view_(view) {}

  /// Drags the selection until the button is released; the view may be gone then.
  void Run();

 private:
  void Finish(QDrag& drag, TextDrag text);

  RichTextView& view_;
  std::unique_ptr<DropReceipt> receipt_;  // of the latest drag
};

}  // namespace lumenote
