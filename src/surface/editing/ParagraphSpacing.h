// Line spacing and the space around paragraphs, as the numbers that windows show and keep.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Of the selection's first paragraph: 20, 30 and 40 for single, one and a half and double spacing,
/// else the stored value.
int LineSpacing(const RichTextSurface& surface);
/// Up to 100 a multiple of the line, in twentieths of a line; from 101 on an exact spacing in
/// twips.
void SetLineSpacing(RichTextSurface& surface, int value);

/// In twips; may be negative.
int SpaceBefore(const RichTextSurface& surface);
void SetSpaceBefore(RichTextSurface& surface, int twips);
int SpaceAfter(const RichTextSurface& surface);
void SetSpaceAfter(RichTextSurface& surface, int twips);

}  // namespace lumenote
