// User input on controls and menus.
#include <array>
#include <limits>

#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/ComboBox.h"
#include "forms/controls/RichTextBox.h"
#include "forms/controls/UpDown.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/stage/Reach.h"
#include "pilot/stage/Stage.h"
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
Kind& ReachKind(Stage& stage, std::string_view path) {
  if (auto* control = dynamic_cast<Kind*>(&ReachControl(stage, path))) return *control;
  throw ScriptError(std::string(path) + " is not of that kind");
}

}  // namespace

Answer Click(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  Element& element = ReachPart(stage, path);
  auto* menu = dynamic_cast<Menu*>(&element);
  if (!menu)
    stage.acts.Click(static_cast<Control&>(element));
  else if (menu->Entries().empty())
    stage.acts.Choose(*menu);
  else
    stage.acts.Open(*menu);
  return {};
}

Answer DoubleClick(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  stage.acts.DoubleClick(ReachControl(stage, path));
  return {};
}

Answer Open(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  stage.acts.Open(ReachMenu(stage, path));
  return {};
}

Answer Type(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::u16string text = arguments.Text();
  arguments.End();
  stage.acts.Type(ReachKeyboard(stage, path), text);
  return {};
}

Answer Key(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::optional<KeyStroke> key = ParseKey(arguments.Text());
  arguments.End();
  if (!key) throw ScriptError("unknown key");
  stage.acts.Key(ReachKeyboard(stage, path), *key);
  return {};
}

Answer Select(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Position start = ReadPosition(arguments);
  const Position length = ReadPosition(arguments);
  arguments.End();
  stage.acts.Select(ReachSurface(stage, path), start, length);
  return {};
}

Answer Mouse(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const MouseAct act = ReadMouseAct(arguments);
  const MouseEvent event = ReadMouseEvent(arguments);
  arguments.End();
  stage.acts.Mouse(ReachControl(stage, path), act, event);
  return {};
}

Answer Drag(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Position start = ReadPosition(arguments);
  const Position length = ReadPosition(arguments);
  const Position to = ReadPosition(arguments);
  arguments.End();
  stage.acts.Drag(ReachSurface(stage, path), start, length, to);
  return {};
}

Answer Spin(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const std::string arrow = arguments.Name();
  arguments.End();
  if (arrow != "up" && arrow != "down") throw ScriptError("up or down expected");
  stage.acts.Spin(ReachKind<UpDown>(stage, path), arrow == "up");
  return {};
}

Answer Pick(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const int index = arguments.Whole(0, std::numeric_limits<int>::max());
  arguments.End();
  auto& combo = ReachKind<ComboBox>(stage, path);
  if (index >= static_cast<int>(combo.List().size()))
    throw RuntimeError(ErrorNumber::NoSuchElement);
  stage.acts.Pick(combo, index);
  return {};
}

Answer Drop(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  stage.acts.Drop(ReachKind<ComboBox>(stage, path));
  return {};
}

}  // namespace lumenote::verbs
