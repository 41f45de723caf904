// The verbs of scripts.
#pragma once
#include <optional>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

class Arguments;
struct Stage;

/// The value that a line prints; empty for a verb without result.
using Answer = std::optional<Value>;

/// Reads all arguments before acting. Raises `ScriptError` for an invalid line, `Refusal` for what
/// cannot be done now, `RuntimeError` for failures of the component.
using Verb = Answer (*)(Stage& stage, Arguments& arguments);

/// Null if there is no such verb.
Verb FindVerb(std::string_view name);

namespace verbs {

// HostVerbs.cpp
Answer Host(Stage& stage, Arguments& arguments);
Answer Show(Stage& stage, Arguments& arguments);

// MemberVerbs.cpp
Answer Get(Stage& stage, Arguments& arguments);
Answer Set(Stage& stage, Arguments& arguments);

// ActVerbs.cpp: user input on controls and menus
Answer Click(Stage& stage, Arguments& arguments);
Answer DoubleClick(Stage& stage, Arguments& arguments);
Answer Open(Stage& stage, Arguments& arguments);
Answer Type(Stage& stage, Arguments& arguments);
Answer Key(Stage& stage, Arguments& arguments);
Answer Select(Stage& stage, Arguments& arguments);
Answer Mouse(Stage& stage, Arguments& arguments);
Answer Drag(Stage& stage, Arguments& arguments);
Answer Spin(Stage& stage, Arguments& arguments);
Answer Pick(Stage& stage, Arguments& arguments);
Answer Drop(Stage& stage, Arguments& arguments);

// WindowVerbs.cpp: windows, message boxes, popup menus
Answer Resize(Stage& stage, Arguments& arguments);
Answer Activate(Stage& stage, Arguments& arguments);
Answer Close(Stage& stage, Arguments& arguments);
Answer Forms(Stage& stage, Arguments& arguments);
Answer QueueAnswers(Stage& stage, Arguments& arguments);
Answer Boxes(Stage& stage, Arguments& arguments);
Answer PopUp(Stage& stage, Arguments& arguments);
Answer FontAnswer(Stage& stage, Arguments& arguments);

// MachineVerbs.cpp: clipboard, time, settings, registry, fonts
Answer Clip(Stage& stage, Arguments& arguments);
Answer ClipRtf(Stage& stage, Arguments& arguments);
Answer Tick(Stage& stage, Arguments& arguments);
Answer Setting(Stage& stage, Arguments& arguments);
Answer Registry(Stage& stage, Arguments& arguments);
Answer ScreenFonts(Stage& stage, Arguments& arguments);
Answer PrinterFonts(Stage& stage, Arguments& arguments);

// FileVerbs.cpp
Answer File(Stage& stage, Arguments& arguments);
Answer Bytes(Stage& stage, Arguments& arguments);
Answer Cat(Stage& stage, Arguments& arguments);
Answer Hex(Stage& stage, Arguments& arguments);
Answer Link(Stage& stage, Arguments& arguments);
Answer Ls(Stage& stage, Arguments& arguments);
Answer Rm(Stage& stage, Arguments& arguments);
Answer ReadOnly(Stage& stage, Arguments& arguments);
Answer Touch(Stage& stage, Arguments& arguments);

// ProgramVerbs.cpp: the stand-ins for external programs
Answer PutProgram(Stage& stage, Arguments& arguments);
Answer Started(Stage& stage, Arguments& arguments);
Answer Killed(Stage& stage, Arguments& arguments);
Answer Finish(Stage& stage, Arguments& arguments);

// ExpectVerbs.cpp
Answer Expect(Stage& stage, Arguments& arguments);
Answer ExpectHas(Stage& stage, Arguments& arguments);
Answer ExpectLike(Stage& stage, Arguments& arguments);
Answer Keep(Stage& stage, Arguments& arguments);
Answer ExpectKept(Stage& stage, Arguments& arguments);

}  // namespace verbs
}  // namespace lumenote
