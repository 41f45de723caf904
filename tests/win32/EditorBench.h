// The control in a program with a plain message loop, for tests.
#pragma once
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "Input.h"
#include "backends/win32/Win32Backend.h"
#include "control/Component.h"
#include "lumenote/CoBxRtf.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    control->pCouleurFen(u"14737632");
    control->pTitreFenêtre(u"Note");
    sandbox.MakeParents(u"C:\\n\\x");
    sandbox.FileSystem().Write(u"C:\\n\\a.txt", "abc");
    control->pStrOrchm(u"C:\\n\\a.txt");
  }

  ~EditorTest() override {
    if (Editor()) Editor()->Abandon();
  }

  Co_Rtf* Editor() { return control->Parts().editor.Loaded(); }
  HWND Handle() { return backend.PeerOf(*Editor())->Handle(); }
  void Open() {
    control->ShowMicroEdit();
    Pump();
  }
  void Type(std::initializer_list<WORD> keys) {
    for (const WORD key : keys) Press({key});
    Pump();
  }
  std::u16string Shown() { return Editor()->Document().Text(); }
  std::string Saved() { return sandbox.FileSystem().ReadAll(u"C:\\n\\a.txt"); }
  /// Runs the host's loop until its end, or until the editor has closed; the host's exit code.
  std::optional<WPARAM> RunHost() {
    MSG message;
    while (Editor() && GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    return TakeQuit();
  }
  static std::optional<WPARAM> TakeQuit() {
    MSG message;
    const bool asked = PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    return asked ? std::optional(message.wParam) : std::nullopt;
  }
  bool OnDisk(const std::string& text) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
      if (!entry.is_regular_file()) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      if (std::string(std::istreambuf_iterator<char>(file), {}).find(text) != std::string::npos)
        return true;
    }
    return false;
  }

  TemporaryFolder folder;
  FolderSandbox sandbox{folder.Path()};
  Win32Backend backend;
  ReportedFonts fonts;
  PilotPlatform machine{sandbox, backend, fonts};
  std::unique_ptr<CoBxRtf> control = std::make_unique<CoBxRtf>(machine);
};

}  // namespace lumenote
