// Windows, message boxes and popup menus.
#include <array>
#include <utility>

#include "base/Numbers.h"
#include "base/Strings.h"
#include "forms/Form.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/context/UsableElements.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

using BoxAnswer = MessageBox::Answer;

constexpr std::array<std::pair<BoxAnswer, const char16_t*>, 3> kAnswers{
    {{BoxAnswer::Ok, u"OK"}, {BoxAnswer::Yes, u"Yes"}, {BoxAnswer::No, u"No"}}};

const char16_t* AnswerName(BoxAnswer answer) {
  for (const auto& [known, name] : kAnswers)
    if (known == answer) return name;
  return u"";
}

const char16_t* ButtonsName(MessageBox::Buttons buttons) {
  return buttons == MessageBox::Buttons::Ok ? u"OK" : u"YesNo";
}

const char16_t* IconName(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::None:
      return u"none";
    case MessageBox::Icon::Critical:
      return u"critical";
    case MessageBox::Icon::Question:
      return u"question";
    case MessageBox::Icon::Exclamation:
      return u"exclamation";
    case MessageBox::Icon::Information:
      return u"information";
  }
  return u"";
}

Value BoxValue(const ShownBox& shown) {
  return Value::Object{{"text", shown.box.text},
                       {"title", shown.box.title},
                       {"buttons", ButtonsName(shown.box.buttons)},
                       {"icon", IconName(shown.box.icon)},
                       {"answer", AnswerName(shown.answer)}};
}

Value FormValue(const Form& form) {
  return Value::Object{{"name", FromUtf8(form.Name())},
                       {"caption", form.Caption()},
                       {"visible", form.Visible()},
                       {"modal", form.IsModal()}};
}

float ReadSize(Arguments& arguments) {
  constexpr double kLargest = 1e6;  // twips
  return static_cast<float>(arguments.Number(0, kLargest));
}

BoxAnswer ReadAnswer(Arguments& arguments) {
  const std::u16string text = arguments.Text();
  for (const auto& [answer, name] : kAnswers)
    if (text == name) return answer;
  throw ScriptError("Yes, No or OK expected");
}

/// The value of a key, if the object has it; `read` raises for a wrong type.
template <class Read>
auto Optional(const Value& object, std::string_view key, Read read)
    -> std::optional<std::decay_t<decltype(read(object))>> {
  const Value* value = object.Find(key);
  if (!value) return {};
  return read(*value);
}

FontChoice ReadFontChoice(const Value& font) {
  if (!font.AsObject()) throw ScriptError("object or null expected");
  FontChoice choice;
  choice.name = Optional(font, "name", [](const Value& v) { return std::u16string(TextOf(v)); });
  choice.size =
      Optional(font, "size", [](const Value& v) { return static_cast<float>(NumberOf(v)); });
  choice.bold = Optional(font, "bold", BooleanOf);
  choice.italic = Optional(font, "italic", BooleanOf);
  choice.underline = Optional(font, "underline", BooleanOf);
  choice.strike = Optional(font, "strike", BooleanOf);
  choice.colour = Optional(font, "color", [](const Value& v) { return ToInt32(NumberOf(v)); });
  return choice;
}

}  // namespace

Answer Resize(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const float width = ReadSize(arguments);
  const float height = ReadSize(arguments);
  arguments.End();
  context.acts.Resize(UsableForm(context, path), width, height);
  return {};
}

Answer Activate(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  UsableForm(context, path);
  return {};
}

Answer Close(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  context.acts.Close(UsableForm(context, path));
  return {};
}

Answer Forms(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  Value::Array forms;
  for (const Form* form : context.Windows().Loaded()) forms.push_back(FormValue(*form));
  return forms;
}

Answer QueueAnswers(ScriptContext& context, Arguments& arguments) {
  std::vector<BoxAnswer> answers;
  do {
    answers.push_back(ReadAnswer(arguments));
  } while (!arguments.AtEnd());
  for (const BoxAnswer answer : answers) context.backend.Answer(answer);
  return {};
}

Answer Boxes(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  Value::Array boxes;
  for (const ShownBox& shown : context.backend.TakeBoxes()) boxes.push_back(BoxValue(shown));
  return boxes;
}

Answer PopUp(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  const std::optional<std::string> menu = context.backend.TakePopUp();
  return menu ? Value(FromUtf8(*menu)) : Value();
}

Answer FontAnswer(ScriptContext& context, Arguments& arguments) {
  const Value font = arguments.Json();
  arguments.End();
  if (font.IsNull())
    context.backend.FontAnswer({});
  else
    context.backend.FontAnswer(ReadFontChoice(font));
  return {};
}

}  // namespace lumenote::verbs
