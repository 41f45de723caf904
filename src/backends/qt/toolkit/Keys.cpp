#include "backends/qt/toolkit/Keys.h"

#include <algorithm>
#include <iterator>

#include "base/Characters.h"

namespace lumenote {

namespace {

struct NamedKey {
  KeyName name{};
  Qt::Key key{};
  char16_t text = 0;
};

/// The first entry of a name is the key to press for it.
constexpr NamedKey kNamedKeys[] = {
    {KeyName::Left, Qt::Key_Left},
    {KeyName::Right, Qt::Key_Right},
    {KeyName::Up, Qt::Key_Up},
    {KeyName::Down, Qt::Key_Down},
    {KeyName::Home, Qt::Key_Home},
    {KeyName::End, Qt::Key_End},
    {KeyName::PageUp, Qt::Key_PageUp},
    {KeyName::PageDown, Qt::Key_PageDown},
    {KeyName::BackSpace, Qt::Key_Backspace, u'\b'},
    {KeyName::Delete, Qt::Key_Delete, u'\x7F'},
    {KeyName::Return, Qt::Key_Return, u'\r'},
    {KeyName::Return, Qt::Key_Enter, u'\r'},
    {KeyName::Tab, Qt::Key_Tab, u'\t'},
    {KeyName::Tab, Qt::Key_Backtab, u'\t'},
    {KeyName::Escape, Qt::Key_Escape, u'\x1B'},
    {KeyName::Insert, Qt::Key_Insert},
    {KeyName::Space, Qt::Key_Space, u' '},
};

constexpr int kFunctionKeys = 35;

}  // namespace

std::optional<KeyStroke> StrokeOf(const QKeyEvent& event) {
  KeyStroke stroke;
  stroke.shift = event.modifiers() & Qt::ShiftModifier;
  stroke.control = event.modifiers() & Qt::ControlModifier;
  stroke.alt = event.modifiers() & Qt::AltModifier;
  const int key = event.key();
  const auto named = std::ranges::find(kNamedKeys, key, &NamedKey::key);
  if (named != std::end(kNamedKeys)) {
    stroke.name = named->name;
    stroke.shift = stroke.shift || key == Qt::Key_Backtab;
    return stroke;
  }
  if (key >= Qt::Key_F1 && key < Qt::Key_F1 + kFunctionKeys) {
    stroke.name = KeyName::Function;
    stroke.character = static_cast<char16_t>(key - Qt::Key_F1 + 1);
    return stroke;
  }
  if (key <= Qt::Key_Space || key > 0xFFFF) return std::nullopt;
  stroke.character = ToLower(static_cast<char16_t>(key));
  return stroke;
}

QKeyEvent EventOf(const KeyStroke& key, QEvent::Type type) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, key.shift);
  modifiers.setFlag(Qt::ControlModifier, key.control);
  modifiers.setFlag(Qt::AltModifier, key.alt);
  if (key.name == KeyName::Function)
    return QKeyEvent(type, Qt::Key_F1 + key.character - 1, modifiers);
  if (key.name == KeyName::Character) {
    const char16_t typed = key.shift ? ToUpper(key.character) : key.character;
    const QString text = key.control ? QString() : QString(QChar(typed));
    return QKeyEvent(type, ToUpper(key.character), modifiers, text);
  }
  const auto named = std::ranges::find(kNamedKeys, key.name, &NamedKey::name);
  const bool back = key.name == KeyName::Tab && key.shift;
  const QString text = named->text ? QString(QChar(named->text)) : QString();
  return QKeyEvent(type, back ? Qt::Key_Backtab : named->key, modifiers, text);
}

QString TypedText(const QKeyEvent& event) {
  const bool command =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const QString text = event.text();
  if (command || text.isEmpty()) return {};
  return text[0].isPrint() || text[0].isSurrogate() ? text : QString();
}

}  // namespace lumenote
