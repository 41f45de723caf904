// The verbs of scripts.
#pragma once
#include <optional>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

class Arguments;
struct ScriptContext;

/// The value that a line prints; empty for a verb without result.
using Answer = std::optional<Value>;

/// Reads all arguments before acting. Raises `ScriptError` for an invalid line, `Refusal` for what
/// cannot be done now, `RuntimeError` for failures of the component.
using Verb = Answer (*)(ScriptContext& context, Arguments& arguments);

/// Null if there is no such verb.
Verb FindVerb(std::string_view name);

namespace verbs {

// HostVerbs.cpp
Answer Host(ScriptContext& context, Arguments& arguments);
Answer Show(ScriptContext& context, Arguments& arguments);

// MemberVerbs.cpp
Answer Get(ScriptContext& context, Arguments& arguments);
Answer Set(ScriptContext& context, Arguments& arguments);

// ActVerbs.cpp: user input on controls and menus
Answer Click(ScriptContext& context, Arguments& arguments);
Answer DoubleClick(ScriptContext& context, Arguments& arguments);
Answer Open(ScriptContext& context, Arguments& arguments);
Answer Type(ScriptContext& context, Arguments& arguments);
Answer Key(ScriptContext& context, Arguments& arguments);
Answer Select(ScriptContext& context, Arguments& arguments);
Answer Mouse(ScriptContext& context, Arguments& arguments);
Answer Drag(ScriptContext& context, Arguments& arguments);
Answer Spin(ScriptContext& context, Arguments& arguments);
Answer Pick(ScriptContext& context, Arguments& arguments);
Answer Drop(ScriptContext& context, Arguments& arguments);

// WindowVerbs.cpp: windows, message boxes, popup menus
Answer Resize(ScriptContext& context, Arguments& arguments);
Answer Activate(ScriptContext& context, Arguments& arguments);
Answer Close(ScriptContext& context, Arguments& arguments);
Answer Forms(ScriptContext& context, Arguments& arguments);
Answer QueueAnswers(ScriptContext& context, Arguments& arguments);
Answer Boxes(ScriptContext& context, Arguments& arguments);
Answer PopUp(ScriptContext& context, Arguments& arguments);
Answer FontAnswer(ScriptContext& context, Arguments& arguments);

// MachineVerbs.cpp: clipboard, time, settings, registry, fonts
Answer Clip(ScriptContext& context, Arguments& arguments);
Answer ClipRtf(ScriptContext& context, Arguments& arguments);
Answer Tick(ScriptContext& context, Arguments& arguments);
Answer Setting(ScriptContext& context, Arguments& arguments);
Answer Registry(ScriptContext& context, Arguments& arguments);
Answer ScreenFonts(ScriptContext& context, Arguments& arguments);
Answer PrinterFonts(ScriptContext& context, Arguments& arguments);

// FileVerbs.cpp
Answer File(ScriptContext& context, Arguments& arguments);
Answer Bytes(ScriptContext& context, Arguments& arguments);
Answer Cat(ScriptContext& context, Arguments& arguments);
Answer Hex(ScriptContext& context, Arguments& arguments);
Answer Link(ScriptContext& context, Arguments& arguments);
Answer Ls(ScriptContext& context, Arguments& arguments);
Answer Rm(ScriptContext& context, Arguments& arguments);
Answer ReadOnly(ScriptContext& context, Arguments& arguments);
Answer Touch(ScriptContext& context, Arguments& arguments);

// ProgramVerbs.cpp: the stand-ins for external programs
Answer PutProgram(ScriptContext& context, Arguments& arguments);
Answer Started(ScriptContext& context, Arguments& arguments);
Answer Killed(ScriptContext& context, Arguments& arguments);
Answer Finish(ScriptContext& context, Arguments& arguments);

// ExpectVerbs.cpp
Answer Expect(ScriptContext& context, Arguments& arguments);
Answer ExpectHas(ScriptContext& context, Arguments& arguments);
Answer ExpectLike(ScriptContext& context, Arguments& arguments);
Answer Keep(ScriptContext& context, Arguments& arguments);
Answer ExpectKept(ScriptContext& context, Arguments& arguments);

}  // namespace verbs
}  // namespace lumenote
