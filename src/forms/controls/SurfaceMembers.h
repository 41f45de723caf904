// The members of a rich-text surface by name.
#pragma once
#include "forms/values/Members.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Adds the content, selection, attribute, undo and spacing members; a mixed attribute is null.
/// The surface outlives the table.
void DescribeSurface(RichTextSurface& surface, MemberTable& members);

}  // namespace lumenote
