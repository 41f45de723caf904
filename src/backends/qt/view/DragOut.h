// Drags text out of a view.
#pragma once
#include <QDrag>
#include <memory>

#include "backends/qt/view/DropReceipt.h"
#include "view/acts/TextDrag.h"

namespace lumenote {

class RichTextView;

/// Text moved to another program is deleted here once that program acknowledges the drop, text
/// moved to another widget at once. On desktops without such an acknowledgement the text stays.
class DragOut {
 public:
  explicit DragOut(RichTextView& view) : view_(view) {}

  /// Drags the selection until the button is released; the view may be destroyed meanwhile.
  void Run();

 private:
  void Finish(QDrag& drag, TextDrag text);

  RichTextView& view_;
  std::unique_ptr<DropReceipt> receipt_;  // of the last drag
};

}  // namespace lumenote
