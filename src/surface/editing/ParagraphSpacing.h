// Line and paragraph spacing in the numbers that windows show and store.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Of the selection's first paragraph: 20, 30 or 40 for single, one-and-a-half or double spacing,
/// else the stored value.
int LineSpacing(const RichTextSurface& surface);
/// Up to 100: a multiple, in twentieths of a line. From 101 on: an exact spacing in twips.
void SetLineSpacing(RichTextSurface& surface, int value);

/// Twips; may be negative.
int SpaceBefore(const RichTextSurface& surface);
void SetSpaceBefore(RichTextSurface& surface, int twips);
int SpaceAfter(const RichTextSurface& surface);
void SetSpaceAfter(RichTextSurface& surface, int twips);

}  // namespace lumenote
