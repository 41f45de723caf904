// The fixed layout of the editor's controls; lengths in twips.
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

/// Lays out the controls for a window of that outer size. Assignments are independent: one that
/// fails (a negative size, a value beyond 16 bits) leaves the old value.
void Disposer(const LayoutParts& parts, float width, float height, bool menuBar);

}  // namespace lumenote
