// Makes views accessible to assistive programs.
#pragma once
#include "surface/editing/SurfaceView.h"

namespace lumenote {

class RichTextView;

/// Registers the text interfaces of views with Qt; idempotent.
void UseViewAccessibility();

/// Notify assistive programs; cheap if there are none.
void AnnounceChange(RichTextView& view, const DocumentChange& change);
void AnnounceSelection(RichTextView& view);

}  // namespace lumenote
