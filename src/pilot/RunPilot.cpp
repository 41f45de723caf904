// Putting a run together.
#include "pilot/RunPilot.h"

#include "forms/Platform.h"
#include "pilot/ScriptRunner.h"
#include "pilot/StandIns.h"

namespace lumenote {
namespace {

/// The sandbox with windows.
class PilotPlatform final : public Platform {
 public:
  PilotPlatform(Sandbox& sandbox, Backend& windows, const Fonts& fonts)
      : sandbox_(sandbox), windows_(windows), fonts_(fonts) {}

  Backend& Windows() override { return windows_; }
  Settings& UserSettings() override { return sandbox_.UserSettings(); }
  Files& FileSystem() override { return sandbox_.FileSystem(); }
  Folders& SpecialFolders() override { return sandbox_.SpecialFolders(); }
  Clipboard& SystemClipboard() override { return sandbox_.SystemClipboard(); }
  const Fonts& SystemFonts() override { return fonts_; }
  const Registry& MachineRegistry() override { return sandbox_.MachineRegistry(); }
  const ProgramFolders& InstalledPrograms() override { return sandbox_.InstalledPrograms(); }
  Processes& Programs() override { return sandbox_.Programs(); }

 private:
  Sandbox& sandbox_;
  Backend& windows_;
  const Fonts& fonts_;
};

}  // namespace

int RunPilot(const PilotRun& run) {
  Transcript transcript(run.out, run.err);
  PilotBackend backend(run.backend);
  ReportedFonts fonts;
  PilotPlatform platform(run.sandbox, backend, fonts);
  CoBxRtf control(platform);
  Stage stage{control, run.sandbox, backend, run.acts, transcript, fonts};
  const auto atEnd = [&] {
    const Form* active = control.Parts().windows.Active();
    if (run.atEnd && active) run.atEnd(*active);
  };
  ScriptRunner(run.script, stage, atEnd).Run();
  if (backend.HasAnswers()) transcript.Fault("queued answers are left over");
  return transcript.Close();
}

}  // namespace lumenote
