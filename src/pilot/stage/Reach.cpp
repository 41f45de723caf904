// Which windows and controls the user can operate now.
#include "pilot/stage/Reach.h"

#include <string>

#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/RichTextBox.h"
#include "pilot/language/ScriptError.h"
#include "pilot/stage/Objects.h"
#include "pilot/stage/Stage.h"

namespace lumenote {
namespace {

void Require(bool reachable) {
  if (!reachable) throw Refusal("disabled");
}

bool IsReachable(const Form& form) {
  const Form* modal = form.Windows().TopModal();
  return form.Visible() && (!modal || modal == &form);
}

bool IsReachable(const Control& control) {
  const Control* inner = &control;
  for (; inner; inner = dynamic_cast<const Control*>(&inner->Parent()))
    if (!inner->Visible() || !inner->Enabled()) return false;
  return true;
}

/// The element as a `Part`, after activating its window. `pick` raises if the element cannot be
/// used; it is called again after the activation, which may have changed anything.
template <class Pick>
auto& Reach(Stage& stage, std::string_view path, Pick pick) {
  const auto find = [&]() -> auto& {
    Element& element = FindElement(stage.Windows(), path);
    auto& part = pick(element);
    Require(IsReachable(element.Owner()));
    return part;
  };
  auto* found = &find();
  if (Form& form = found->Owner(); stage.Windows().Active() != &form) {
    stage.acts.Activate(form);
    found = &find();
  }
  return *found;
}

template <class Part>
Part& As(Element& element, const char* kind) {
  if (auto* part = dynamic_cast<Part*>(&element)) return *part;
  throw ScriptError(element.Name() + " is no " + kind);
}

Control& UsableControl(Element& element) {
  auto& control = As<Control>(element, "control");
  Require(IsReachable(control));
  return control;
}

}  // namespace

Form& ReachForm(Stage& stage, std::string_view path) {
  return Reach(stage, path, [](Element& e) -> Form& { return As<Form>(e, "window"); });
}

Element& ReachPart(Stage& stage, std::string_view path) {
  return Reach(stage, path, [](Element& element) -> Element& {
    const auto* menu = dynamic_cast<const Menu*>(&element);
    if (!menu) return UsableControl(element);
    Require(menu->Visible() && menu->Enabled());
    return element;
  });
}

Control& ReachControl(Stage& stage, std::string_view path) {
  return Reach(stage, path, UsableControl);
}

Control& ReachKeyboard(Stage& stage, std::string_view path) {
  return Reach(stage, path, [](Element& element) -> Control& {
    const auto* form = dynamic_cast<const Form*>(&element);
    if (form && !form->ActiveControl()) throw Refusal("disabled");
    auto& control = UsableControl(form ? *form->ActiveControl() : element);
    if (!control.TakesFocus()) throw ScriptError(control.Name() + " takes no keys");
    return control;
  });
}

RichTextBox& ReachSurface(Stage& stage, std::string_view path) {
  return Reach(stage, path, [](Element& element) -> RichTextBox& {
    UsableControl(element);
    return As<RichTextBox>(element, "surface");
  });
}

Menu& ReachMenu(Stage& stage, std::string_view path) {
  return Reach(stage, path, [](Element& element) -> Menu& {
    auto& menu = As<Menu>(element, "menu");
    Require(menu.Enabled());
    return menu;
  });
}

}  // namespace lumenote
