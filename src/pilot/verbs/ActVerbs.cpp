// User input on controls and menus.
#include <algorithm>
#include <array>
#include <limits>

#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/buttons/UpDown.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/edits/RichTextBox.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/context/UsableElements.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

using MouseAct = UserActs::MouseAct;

Position ReadPosition(Arguments& arguments) {
  return arguments.Whole(0, std::numeric_limits<Position>::max());
}

MouseAct ReadMouseAct(Arguments& arguments) {
  constexpr std::array<std::pair<std::string_view, MouseAct>, 3> kActs{
      {{"up", MouseAct::Up}, {"down", MouseAct::Down}, {"move", MouseAct::Move}}};
  const std::string name = arguments.Name();
  for (const auto& [known, act] : kActs)
    if (known == name) return act;
  throw ScriptError("up, down or move expected");
}

float ReadCoordinate(Arguments& arguments) {
  constexpr double kFarthest = 1e6;  // twips
  return static_cast<float>(arguments.Number(-kFarthest, kFarthest));
}

MouseEvent ReadMouseEvent(Arguments& arguments) {
  constexpr std::array kButtons{MouseButton::None, MouseButton::Left, MouseButton::Right};
  MouseEvent event;
  event.button = kButtons[static_cast<std::size_t>(arguments.Whole(0, 2))];
  event.at.x = ReadCoordinate(arguments);
  event.at.y = ReadCoordinate(arguments);
  return event;
}

/// A control of one kind that the user can operate.
template <class Kind>
Kind& UsableKind(ScriptContext& context, std::string_view path) {
  if (auto* control = dynamic_cast<Kind*>(&UsableControl(context, path))) return *control;
  throw ScriptError(std::string(path) + " is not of that kind");
}

}  // namespace

Answer Click(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  Element& element = UsablePart(context, path);
  auto* menu = dynamic_cast<Menu*>(&element);
  if (!menu)
    context.acts.Click(static_cast<Control&>(element));
  else if (menu->Entries().empty())
    context.acts.Choose(*menu);
  else
    context.acts.Open(*menu);
  return {};
}

Answer DoubleClick(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  context.acts.DoubleClick(UsableControl(context, path));
  return {};
}

Answer Open(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  context.acts.Open(UsableMenu(context, path));
  return {};
}

Answer Type(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::u16string text = arguments.Text();
  arguments.End();
  context.acts.Type(KeyboardTarget(context, path), text);
  return {};
}

Answer Key(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::optional<KeyStroke> key = ParseKey(arguments.Text());
  arguments.End();
  if (!key) throw ScriptError("unknown key");
  context.acts.Key(KeyboardTarget(context, path), *key);
  return {};
}

Answer Select(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Position start = ReadPosition(arguments);
  const Position length = ReadPosition(arguments);
  arguments.End();
  context.acts.Select(UsableSurface(context, path), start, length);
  return {};
}

Answer Mouse(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const MouseAct act = ReadMouseAct(arguments);
  const MouseEvent event = ReadMouseEvent(arguments);
  arguments.End();
  context.acts.Mouse(UsableControl(context, path), act, event);
  return {};
}

Answer Drag(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Position start = ReadPosition(arguments);
  const Position length = ReadPosition(arguments);
  const Position to = ReadPosition(arguments);
  arguments.End();
  RichTextBox& box = UsableSurface(context, path);
  const auto end = static_cast<Position>(box.Surface().Text().size());
  context.acts.Drag(box, start, length, std::min(to, end));
  return {};
}

Answer Spin(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::string arrow = arguments.Name();
  arguments.End();
  if (arrow != "up" && arrow != "down") throw ScriptError("up or down expected");
  context.acts.Spin(UsableKind<UpDown>(context, path), arrow == "up");
  return {};
}

Answer Pick(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const int index = arguments.Whole(0, std::numeric_limits<int>::max());
  arguments.End();
  auto& combo = UsableKind<ComboBox>(context, path);
  if (index >= static_cast<int>(combo.List().size()))
    throw RuntimeError(ErrorNumber::NoSuchElement);
  context.acts.Pick(combo, index);
  return {};
}

Answer Drop(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  context.acts.Drop(UsableKind<ComboBox>(context, path));
  return {};
}

}  // namespace lumenote::verbs
