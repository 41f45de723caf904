// Views as assistive programs read and edit them.
#pragma once
#include "surface/editing/SurfaceView.h"

namespace lumenote {

class RichTextView;

/// Makes the toolkit offer text and editable text of views; does nothing the second time.
void UseViewAccessibility();

/// Tell who listens; cost nothing when nobody does.
void AnnounceChange(RichTextView& view, const DocumentChange& change);
void AnnounceSelection(RichTextView& view);

}  // namespace lumenote
