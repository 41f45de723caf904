// The look of the system's controls.
#pragma once
#include "backends/win32/system/System.h"

namespace lumenote {

/// What is made within a block has visual styles, even in a host that does not ask for them.
class VisualStyles {
 public:
  VisualStyles();
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool active_;
};

/// Answers WM_NCPAINT for a window of our own whose sunken edge the system has painted: paints over
/// it the edge that edit boxes have.
void PaintStyledEdge(HWND window);

}  // namespace lumenote
