#include "view/acts/FollowedLinks.h"

#include "document/Bookmarks.h"
#include "document/Links.h"

namespace lumenote {
namespace {

bool IsWithin(std::u16string_view address) { return address.starts_with(u'#'); }

}  // namespace

bool MayFollow(std::u16string_view address) { return IsWithin(address) || MayOpen(address); }

void FollowLink(NoteView& view, std::u16string_view address) {
  if (!IsWithin(address)) return view.Host().OpenLink(address);
  const auto target = FindBookmark(view.Surface().Content(), address.substr(1));
  if (target) view.Select(*target, *target);
}

}  // namespace lumenote
