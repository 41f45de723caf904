// The members of a rich-text surface by name.
#pragma once
#include "forms/values/Members.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Adds the members for content, selection, attributes, undo and spacing; a mixed attribute is
/// null. The surface must outlive the table.
void DescribeSurface(RichTextSurface& surface, MemberTable& members);

}  // namespace lumenote
