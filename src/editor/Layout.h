// The fixed arithmetic that places the editor's controls; all lengths in twips.
#pragma once
#include <array>

namespace lumenote {

class Control;

inline constexpr float kDocumentTop = 270;

/// The controls that a resize moves.
struct LayoutParts {
  Control& frame;
  Control& document;
  Control& ruler;
  Control& format;
  std::array<Control*, 2> zones;  // the labels above and below the document
};

/// Places the controls in a window of that outer size. Every assignment stands alone: one that
/// fails (a negative size, a value beyond 16 bits) leaves what stood before.
void Disposer(const LayoutParts& parts, float width, float height, bool menuBar);

}  // namespace lumenote
