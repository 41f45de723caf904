// A script's machine: files, settings and programs of a sandbox, and windows.
#pragma once
#include "lumenote/Platform.h"
#include "pilot/machine/FakePrograms.h"
#include "pilot/machine/Sandbox.h"

namespace lumenote {

/// Owns nothing; its parts must outlive it.
class PilotPlatform : public Platform {
 public:
  PilotPlatform(Sandbox& sandbox, Backend& windows, const Fonts& fonts)
      : sandbox_(sandbox), windows_(windows), fonts_(fonts) {}

  Backend& Windows() override { return windows_; }
  Settings& UserSettings() override { return sandbox_.UserSettings(); }
  Files& FileSystem() override { return sandbox_.FileSystem(); }
  Folders& SpecialFolders() override { return sandbox_.SpecialFolders(); }
  StateFolder& State() override { return sandbox_.State(); }
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

}  // namespace lumenote
