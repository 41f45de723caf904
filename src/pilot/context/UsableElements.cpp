// Which windows and controls the user can operate now.
#include "pilot/context/UsableElements.h"

#include <string>

#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/edits/RichTextBox.h"
#include "pilot/context/Objects.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

void Require(bool usable) {
  if (!usable) throw Refusal("disabled");
}

bool IsUsable(const Form& form) {
  const Form* modal = form.Windows().TopModal();
  return form.Visible() && (!modal || modal == &form);
}

bool IsUsable(const Control& control) {
  const Control* inner = &control;
  for (; inner; inner = dynamic_cast<const Control*>(&inner->Parent()))
    if (!inner->Visible() || !inner->Enabled()) return false;
  return true;
}

/// The element as a `Part`, after activating its window. `pick` raises if the element cannot be
/// used; it is called again after the activation, which may have changed anything.
template <class Pick>
auto& UsableElement(ScriptContext& context, std::string_view path, Pick pick) {
  const auto find = [&]() -> auto& {
    Element& element = FindElement(context.Windows(), path);
    auto& part = pick(element);
    Require(IsUsable(element.Owner()));
    return part;
  };
  auto* found = &find();
  if (Form& form = found->Owner(); context.Windows().Active() != &form) {
    context.acts.Activate(form);
    found = &find();
  }
  return *found;
}

template <class Part>
Part& As(Element& element, const char* kind) {
  if (auto* part = dynamic_cast<Part*>(&element)) return *part;
  throw ScriptError(element.Name() + " is no " + kind);
}

Control& AsUsableControl(Element& element) {
  auto& control = As<Control>(element, "control");
  Require(IsUsable(control));
  return control;
}

}  // namespace

Form& UsableForm(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, [](Element& e) -> Form& { return As<Form>(e, "window"); });
}

Element& UsablePart(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, [](Element& element) -> Element& {
    const auto* menu = dynamic_cast<const Menu*>(&element);
    if (!menu) return AsUsableControl(element);
    Require(menu->Visible() && menu->Enabled());
    return element;
  });
}

Control& UsableControl(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, AsUsableControl);
}

Control& KeyboardTarget(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, [](Element& element) -> Control& {
    const auto* form = dynamic_cast<const Form*>(&element);
    if (form && !form->ActiveControl()) throw Refusal("disabled");
    auto& control = AsUsableControl(form ? *form->ActiveControl() : element);
    if (!control.TakesFocus()) throw ScriptError(control.Name() + " takes no keys");
    return control;
  });
}

RichTextBox& UsableSurface(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, [](Element& element) -> RichTextBox& {
    AsUsableControl(element);
    return As<RichTextBox>(element, "surface");
  });
}

Menu& UsableMenu(ScriptContext& context, std::string_view path) {
  return UsableElement(context, path, [](Element& element) -> Menu& {
    auto& menu = As<Menu>(element, "menu");
    Require(menu.Enabled());
    return menu;
  });
}

}  // namespace lumenote
