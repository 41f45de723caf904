// Windows, their parts and members by the names that scripts give them.
#pragma once
#include <string_view>

#include "base/Value.h"

namespace lumenote {

class Element;
class Form;
class WindowList;
struct Session;
struct Stage;

/// A loaded window. Raises `Refusal` for one that is not loaded, `ScriptError` for a name that no
/// window has.
Form& FindForm(const WindowList& windows, std::string_view name);
/// "FORM" or "FORM.CONTROL", an index in parentheses belonging to the name. Raises, further,
/// `ScriptError` for an unknown name and NoSuchElement (340) for an index that an array lacks.
Element& FindElement(const WindowList& windows, std::string_view path);

/// "OBJECT.MEMBER" or "Session.NAME".
Value ReadMember(Stage& stage, std::string_view path);
void WriteMember(Stage& stage, std::string_view path, const Value& value);

/// One of the session's values; raises `ScriptError` for an unknown name.
Value ReadSession(const Session& session, std::string_view name);

/// One field of the paragraph style in use, or its right margin; the same.
Value ReadStyle(std::string_view name);
void WriteStyle(std::string_view name, const Value& value);

}  // namespace lumenote
