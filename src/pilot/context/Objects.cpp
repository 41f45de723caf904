// Looks up windows, elements and members by name.
#include "pilot/context/Objects.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "base/RuntimeError.h"
#include "forms/Form.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

constexpr std::array<std::string_view, 5> kWindowNames{"Co_Rtf", "Co_Paragraph", "Co_Apprendre",
                                                       "Co_Trouver", "Co_Symbols"};
constexpr std::string_view kSession = "Session";
constexpr std::string_view kStyle = "CurrentStyle";

[[noreturn]] void Unknown(std::string_view kind, std::string_view name) {
  throw ScriptError("unknown " + std::string(kind) + " " + std::string(name));
}

/// The name before the parentheses; empty without any.
std::string_view ArrayName(std::string_view name) {
  const std::size_t open = name.find('(');
  return open == std::string_view::npos ? std::string_view() : name.substr(0, open);
}

bool HasArray(const Form& form, std::string_view array) {
  const auto& elements = form.Elements();
  return !array.empty() &&
         std::any_of(elements.begin(), elements.end(),
                     [&](const Element* element) { return ArrayName(element->Name()) == array; });
}

/// A member name in a path: "Panels(1)" is the member Panels with index 1.
struct MemberName {
  std::string_view name;
  int index = -1;
};

MemberName ParseMember(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return {text};
  int index = -1;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data() + open + 1, end, index);
  if (read.ec != std::errc() || std::string_view(read.ptr, end) != ")") Unknown("member", text);
  return {text.substr(0, open), index};
}

/// The parts before and after the last point.
std::pair<std::string_view, std::string_view> SplitMember(std::string_view path) {
  const std::size_t point = path.rfind('.');
  if (point == std::string_view::npos) throw ScriptError("OBJECT.MEMBER expected");
  return {path.substr(0, point), path.substr(point + 1)};
}

const Member& FindMember(const MemberTable& members, const MemberName& wanted) {
  const Member* member = members.Find(wanted.name);
  if (!member) Unknown("member", wanted.name);
  return *member;
}

}  // namespace

Form& FindForm(const WindowList& windows, std::string_view name) {
  for (Form* form : windows.Loaded())
    if (form->Name() == name) return *form;
  if (std::find(kWindowNames.begin(), kWindowNames.end(), name) == kWindowNames.end())
    Unknown("window", name);
  throw Refusal("not loaded");
}

Element& FindElement(const WindowList& windows, std::string_view path) {
  const std::size_t point = path.find('.');
  Form& form = FindForm(windows, path.substr(0, point));
  if (point == std::string_view::npos) return form;
  const std::string_view name = path.substr(point + 1);
  if (Element* element = form.Find(name)) return *element;
  if (HasArray(form, ArrayName(name))) throw RuntimeError(ErrorNumber::NoSuchElement);
  Unknown("control", path);
}

Value ReadMember(ScriptContext& context, std::string_view path) {
  const auto [object, name] = SplitMember(path);
  if (object == kSession) return ReadSession(*context.control.Parts().session, name);
  if (object == kStyle) return ReadStyle(name);
  const MemberName wanted = ParseMember(name);
  MemberTable members;
  FindElement(context.Windows(), object).Describe(members);
  return FindMember(members, wanted).get(wanted.index);
}

void WriteMember(ScriptContext& context, std::string_view path, const Value& value) {
  const auto [object, name] = SplitMember(path);
  if (object == kSession) throw ScriptError("session values can only be read");
  if (object == kStyle) return WriteStyle(name, value);
  const MemberName wanted = ParseMember(name);
  MemberTable members;
  FindElement(context.Windows(), object).Describe(members);
  const Member& member = FindMember(members, wanted);
  if (!member.set) throw ScriptError(std::string(name) + " can only be read");
  member.set(value, wanted.index);
}

}  // namespace lumenote
