#include "view/acts/ViewKeys.h"

#include "document/Links.h"
#include "surface/keys/UserKeys.h"
#include "view/acts/FollowedLinks.h"
#include "view/pane/NoteView.h"

namespace lumenote {

namespace {

constexpr KeyStroke kMenuKey{.name = KeyName::Function, .character = 10, .shift = true};
constexpr KeyStroke kLinkKey{.name = KeyName::Return, .control = true};

// The key of 0 types "à" on French keyboards.
bool IsZoom(const KeyStroke& key) {
  return key.name == KeyName::Character && key.control && !key.alt &&
         std::u16string_view(u"+=-0à").find(key.character) != std::u16string_view::npos;
}

}  // namespace

bool ViewKeys::Press(const std::optional<KeyStroke>& key, std::u16string_view text) {
  if (key && key->name == KeyName::Tab && !key->control && view_.Host().TabLeaves()) return false;
  if (key && Zoom(*key)) return true;
  if (key == kLinkKey) return OpenLink();
  if (key && IsForSpelling(*key)) {
    view_.Host().OpenSpelling();
    return true;
  }
  if (key != kMenuKey) return Edit(key, text);
  OpenMenu();
  return true;
}

bool ViewKeys::Edit(const std::optional<KeyStroke>& key, std::u16string_view text) {
  if (!text.empty()) {
    const bool used = !view_.IsLocked();
    view_.Type(text);
    return used;
  }
  if (!key || (view_.IsLocked() && !IsNonEditing(*key))) return false;
  bool used = false;
  view_.Act([&] { used = view_.Surface().UserKey(*key); });
  return used;
}

// The full stop of a French keyboard is shifted.
bool ViewKeys::IsForSpelling(const KeyStroke& key) const {
  return key.name == KeyName::Character && key.character == u'.' && key.control && !key.alt &&
         view_.Host().ChecksSpelling();
}

bool ViewKeys::IsForEditing(const KeyStroke& key) const {
  if (IsForSpelling(key)) return true;
  if (key.alt || key.name == KeyName::Escape || key.name == KeyName::Function) return false;
  return key.name != KeyName::Character || !key.control || IsCommandKey(key) || IsZoom(key);
}

bool ViewKeys::Zoom(const KeyStroke& key) {
  if (!IsZoom(key)) return false;
  switch (key.character) {
    case u'+':
    case u'=':
      view_.ZoomBy(1);
      return true;
    case u'-':
      view_.ZoomBy(-1);
      return true;
    default:
      view_.Zoom(1);
      return true;
  }
}

/// The link that the caret is in or at the end of.
bool ViewKeys::OpenLink() {
  const DocumentSurface& surface = view_.Surface();
  const Position caret = surface.Caret();
  std::u16string address = LinkAt(surface.Content(), caret);
  if (address.empty()) address = LinkAt(surface.Content(), caret - 1);
  if (address.empty()) return false;
  FollowLink(view_, address);
  return true;
}

void ViewKeys::OpenMenu() {
  const Position caret = view_.Surface().Caret();
  view_.Pane().Reveal(caret);
  view_.Settle();
  const PixelRect box = view_.Pane().CaretAt(caret).value_or(PixelRect());
  view_.Host().OpenMenu({box.left, box.bottom});
}

}  // namespace lumenote
