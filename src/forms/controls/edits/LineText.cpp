#include "forms/controls/edits/LineText.h"

#include <algorithm>

#include "platform/Clipboard.h"

namespace lumenote {

void LineText::Text(std::u16string_view text) {
  if (text == text_) return;
  text_ = text;
  anchor_ = caret_ = static_cast<Position>(text_.size());
}

Selection LineText::Selected() const {
  return {std::min(anchor_, caret_), std::max(anchor_, caret_)};
}

void LineText::Select(Position anchor, Position caret) {
  const auto end = static_cast<Position>(text_.size());
  anchor_ = std::clamp(anchor, 0, end);
  caret_ = std::clamp(caret, 0, end);
}

void LineText::Move(Position caret, bool extend) { Select(extend ? anchor_ : caret, caret); }

std::u16string LineText::Taken() const {
  const Selection taken = Selected();
  return text_.substr(static_cast<std::size_t>(taken.start),
                      static_cast<std::size_t>(taken.Length()));
}

void LineText::Type(std::u16string_view text) {
  std::u16string line(text);
  std::erase_if(line, [](char16_t c) { return c < u' '; });
  const Selection taken = Selected();
  text_.replace(static_cast<std::size_t>(taken.start), static_cast<std::size_t>(taken.Length()),
                line);
  const Position behind = taken.start + static_cast<Position>(line.size());
  Select(behind, behind);
}

void LineText::Erase(bool forward) {
  if (anchor_ == caret_) Move(caret_ + (forward ? 1 : -1), true);
  Type({});
}

bool LineText::Key(const KeyStroke& key, Clipboard& clipboard) {
  const bool collapse = anchor_ != caret_ && !key.shift;
  switch (key.name) {
    case KeyName::Left:
      Move(collapse ? Selected().start : caret_ - 1, key.shift);
      return true;
    case KeyName::Right:
      Move(collapse ? Selected().end : caret_ + 1, key.shift);
      return true;
    case KeyName::Home:
      Move(0, key.shift);
      return true;
    case KeyName::End:
      Move(static_cast<Position>(text_.size()), key.shift);
      return true;
    case KeyName::BackSpace:
    case KeyName::Delete:
      Erase(key.name == KeyName::Delete);
      return true;
    default:
      return key.control && ControlKey(key, clipboard);
  }
}

bool LineText::ControlKey(const KeyStroke& key, Clipboard& clipboard) {
  switch (key.character) {
    case u'a':
      Select(0, static_cast<Position>(text_.size()));
      return true;
    case u'c':
    case u'x':
      if (anchor_ == caret_) return true;
      clipboard.Set({.text = Taken(), .rtf = {}});
      if (key.character == u'x') Type({});
      return true;
    case u'v':
      Type(clipboard.Get().text.value_or(u""));
      return true;
    default:
      return false;
  }
}

}  // namespace lumenote
