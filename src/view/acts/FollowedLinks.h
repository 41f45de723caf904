// Links that the user follows, out of the note or within it.
#pragma once
#include <string_view>

#include "view/pane/NoteView.h"

namespace lumenote {

/// Whether a target, "#name" within the note, is one to follow.
bool MayFollow(std::u16string_view address);
/// Opens the target, or selects the beginning of the bookmark; the view may be detached then.
void FollowLink(NoteView& view, std::u16string_view address);

}  // namespace lumenote
