// Windows, their elements and members, by the names that scripts use.
#pragma once
#include <string_view>

#include "base/Value.h"

namespace lumenote {

class Element;
class Form;
class WindowList;
struct Session;
struct ScriptContext;

/// A loaded window. Raises `Refusal` if it is not loaded, `ScriptError` if no window has that name.
Form& FindForm(const WindowList& windows, std::string_view name);
/// "FORM" or "FORM.CONTROL", with an index in parentheses if any. Also raises `ScriptError` for an
/// unknown name and NoSuchElement (340) for a missing index of an array.
Element& FindElement(const WindowList& windows, std::string_view path);

/// "OBJECT.MEMBER" or "Session.NAME".
Value ReadMember(ScriptContext& context, std::string_view path);
void WriteMember(ScriptContext& context, std::string_view path, const Value& value);

/// One of the session's values; raises `ScriptError` for an unknown name.
Value ReadSession(const Session& session, std::string_view name);

/// One field of the current paragraph style, or its right margin; raises likewise.
Value ReadStyle(std::string_view name);
void WriteStyle(std::string_view name, const Value& value);

}  // namespace lumenote
