// Assembles a script run.
#include "pilot/RunPilot.h"

#include "pilot/ScriptRunner.h"
#include "pilot/machine/PilotPlatform.h"

namespace lumenote {

int RunPilot(const PilotRun& run) {
  Transcript transcript(run.out, run.err);
  PilotBackend backend(run.backend);
  ReportedFonts fonts;
  PilotPlatform platform(run.sandbox, backend, fonts);
  CoBxRtf control(platform);
  ScriptContext context{control, run.sandbox, backend, run.acts, transcript, fonts};
  const auto atEnd = [&] {
    const Form* active = control.Parts().windows.Active();
    if (run.atEnd && active) run.atEnd(*active);
  };
  ScriptRunner(run.script, context, atEnd).Run();
  if (backend.HasAnswers()) transcript.Fault("queued answers are left over");
  return transcript.Close();
}

}  // namespace lumenote
