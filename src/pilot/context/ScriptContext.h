// The context that a script's verbs work in.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "control/Component.h"
#include "forms/controls/UserActs.h"
#include "lumenote/CoBxRtf.h"
#include "pilot/language/Transcript.h"
#include "pilot/machine/PilotBackend.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/machine/Sandbox.h"

namespace lumenote {

struct ScriptContext {
  CoBxRtf& control;
  Sandbox& sandbox;
  PilotBackend& backend;
  UserActs& acts;
  Transcript& transcript;
  ReportedFonts& fonts;

  WindowList& Windows() const { return control.Parts().windows; }
};

}  // namespace lumenote
