// The text of a one-line edit box, with its caret and selection.
#pragma once
#include <string>
#include <string_view>

#include "base/Position.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

class Clipboard;

/// Line breaks and other control characters are dropped. The caret is the selection's moving end.
class LineText {
 public:
  const std::u16string& Text() const { return text_; }
  /// Replaces the text and puts the caret at its end.
  void Text(std::u16string_view text);
  Selection Selected() const;
  void Select(Position anchor, Position caret);

  /// Replaces the selection.
  void Type(std::u16string_view text);
  /// Handles caret, editing and clipboard keys; false if the key means nothing here.
  bool Key(const KeyStroke& key, Clipboard& clipboard);

 private:
  bool ControlKey(const KeyStroke& key, Clipboard& clipboard);
  void Move(Position caret, bool extend);
  void Erase(bool forward);
  std::u16string Taken() const;

  std::u16string text_;
  Position anchor_ = 0;
  Position caret_ = 0;
};

}  // namespace lumenote
