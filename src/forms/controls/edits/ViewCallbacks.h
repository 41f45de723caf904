// What the view of a rich-text box asks and tells its window.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "forms/Control.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

class RichTextBox;

/// Each may be empty.
struct ViewCallbacks {
  /// Executes user input on the surface, as an event of the window.
  std::function<void(const std::function<void()>&)> act{};
  /// A button was released at a point in twips from the view's corner.
  std::function<void(const MouseEvent&)> mouseUp{};
  /// Whether user edits are blocked.
  std::function<bool()> locked{};
  /// A link was chosen.
  std::function<void(std::u16string_view)> link{};
  /// Whether Tab goes to the next control.
  std::function<bool()> tabLeaves{};
  /// What users call the view.
  std::function<std::u16string()> name{};
  /// A key that the view has no use for; true if the window has.
  std::function<bool(const KeyStroke&)> key{};
};

/// Those of a box, which outlives them; toolkits that do not offer such keys themselves add `key`.
ViewCallbacks CallbacksOf(RichTextBox& box);

}  // namespace lumenote
