#include "view/acts/ViewKeys.h"

#include "view/pane/NoteView.h"

namespace lumenote {

namespace {

constexpr KeyStroke kMenuKey{.name = KeyName::Function, .character = 10, .shift = true};

}  // namespace

bool ViewKeys::Press(const std::optional<KeyStroke>& key, std::u16string_view text) {
  if (key && Zoom(*key)) return true;
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

bool ViewKeys::Zoom(const KeyStroke& key) {
  if (!key.control || key.alt || key.name != KeyName::Character) return false;
  switch (key.character) {
    case u'+':
    case u'=':
      view_.ZoomBy(1);
      return true;
    case u'-':
      view_.ZoomBy(-1);
      return true;
    case u'0':
      view_.Zoom(1);
      return true;
    default:
      return false;
  }
}

void ViewKeys::OpenMenu() {
  const Position caret = view_.Surface().Caret();
  view_.Pane().Reveal(caret);
  view_.Settle();
  const PixelRect box = view_.Pane().CaretAt(caret).value_or(PixelRect());
  view_.Host().OpenMenu({box.left, box.bottom});
}

}  // namespace lumenote
