// What the verbs of a script work on.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "control/CoBxRtf.h"
#include "control/Component.h"
#include "forms/UserActs.h"
#include "pilot/PilotBackend.h"
#include "pilot/ReportedFonts.h"
#include "pilot/Sandbox.h"
#include "pilot/Transcript.h"

namespace lumenote {

struct Stage {
  CoBxRtf& control;
  Sandbox& sandbox;
  PilotBackend& backend;
  UserActs& acts;
  Transcript& transcript;
  ReportedFonts& fonts;

  WindowList& Windows() const { return control.Parts().windows; }
};

}  // namespace lumenote
