// The machine around the component: clipboard, time, settings, registry, fonts.
#include <limits>

#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"
#include "platform/Clipboard.h"
#include "platform/Registry.h"
#include "platform/Settings.h"
#include "surface/editing/SourceBytes.h"

namespace lumenote::verbs {
namespace {

template <class Text>
Value ValueOrNull(const std::optional<Text>& text) {
  return text ? Value(*text) : Value();
}

Value ClipboardValue(const ClipboardContent& content) {
  return Value::Object{{"text", ValueOrNull(content.text)},
                       {"rtf", content.rtf ? Value(WidenSource(*content.rtf)) : Value()}};
}

}  // namespace

Answer Clip(ScriptContext& context, Arguments& arguments) {
  Clipboard& clipboard = context.sandbox.SystemClipboard();
  if (arguments.AtEnd()) return ClipboardValue(clipboard.Get());
  const Value content = arguments.Any();
  arguments.End();
  if (content.IsNull())
    clipboard.Clear();
  else if (const std::u16string* text = content.AsString())
    clipboard.Set({*text, std::nullopt});
  else
    throw ScriptError("string or null expected");
  return {};
}

Answer ClipRtf(ScriptContext& context, Arguments& arguments) {
  const std::string rtf = NarrowSource(arguments.Text());
  arguments.End();
  context.sandbox.SystemClipboard().Set({std::nullopt, rtf});
  return {};
}

Answer Tick(ScriptContext& context, Arguments& arguments) {
  const std::int32_t time = arguments.Whole(0, std::numeric_limits<std::int32_t>::max());
  arguments.End();
  context.backend.Tick(time);
  return {};
}

Answer Setting(ScriptContext& context, Arguments& arguments) {
  const std::u16string application = arguments.Text();
  const std::u16string section = arguments.Text();
  const std::u16string key = arguments.Text();
  Settings& settings = context.sandbox.UserSettings();
  if (arguments.AtEnd()) return ValueOrNull(settings.Read(application, section, key));
  const std::u16string value = arguments.Text();
  arguments.End();
  settings.Write(application, section, key, value);
  return {};
}

Answer Registry(ScriptContext& context, Arguments& arguments) {
  const std::u16string key = arguments.Text();
  const std::u16string name = arguments.Text();
  if (arguments.AtEnd()) return ValueOrNull(context.sandbox.MachineRegistry().Read(key, name));
  const std::u16string value = arguments.Text();
  arguments.End();
  context.sandbox.WriteRegistry(key, name, value);
  return {};
}

Answer ScreenFonts(ScriptContext& context, Arguments& arguments) {
  const Value fonts = arguments.Json();
  arguments.End();
  std::vector<std::u16string> names;
  if (!fonts.AsArray()) throw ScriptError("array expected");
  for (const Value& font : *fonts.AsArray()) {
    if (!font.AsString()) throw ScriptError("font name expected");
    names.push_back(*font.AsString());
  }
  context.fonts.screen = std::move(names);
  return {};
}

Answer PrinterFonts(ScriptContext& context, Arguments& arguments) {
  Arguments ahead = arguments;
  const bool none = ahead.Any() == Value(u"none");
  if (none) arguments = ahead;
  std::optional<int> count;
  if (!none) count = arguments.Whole(0, std::numeric_limits<int>::max());
  arguments.End();
  context.fonts.printer = count;
  return {};
}

}  // namespace lumenote::verbs
