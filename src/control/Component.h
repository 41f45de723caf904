// The implementation of a control: its session and its windows.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "editor/Co_Rtf.h"
#include "extapps/WorkCopies.h"
#include "forms/Instance.h"
#include "forms/WindowList.h"
#include "platform/Folders.h"
#include "session/Session.h"

namespace lumenote {

class Platform;

/// May outlive the control, until events of its editor have returned.
struct Component {
  explicit Component(Platform& platform);

  /// Null unless the component owns it; goes after everything else.
  std::shared_ptr<Platform> platform;
  /// The thread that created the control, the only one that may use it.
  const std::thread::id thread = std::this_thread::get_id();
  /// That of the open editor, else of the next one. A closed editor keeps its own, so that late
  /// returns reach neither the host's note nor the next editor.
  std::shared_ptr<Session> session = std::make_shared<Session>();
  std::unique_ptr<TempFolder> temp;
  /// Work files that closed editors have left to programs.
  std::vector<SentWorkFile> outstandingWork;
  WindowList windows;
  Instance<Co_Rtf> editor;
  /// The host's handler, called when an editor has closed; empty for none.
  std::function<void()> closed;
  std::uintptr_t hostWindow = 0;  // which editors stay above; 0 for none

 private:
  std::unique_ptr<Co_Rtf> MakeEditor();
};

}  // namespace lumenote
