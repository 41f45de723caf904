// What stands behind one control: its session, its windows.
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

/// Outlives the control while an event of its editor has not returned yet.
struct Component {
  explicit Component(Platform& platform);

  /// Where the control was made, and where it has to be used.
  const std::thread::id thread = std::this_thread::get_id();
  /// Of the open editor, else of the next one. An editor that has closed keeps its own, so that
  /// what still returns there reaches neither the host's note nor the next editor.
  std::shared_ptr<Session> session = std::make_shared<Session>();
  std::unique_ptr<TempFolder> temp;
  /// Work files that editors which have closed have left to programs.
  std::vector<WorkSent> workLeft;
  WindowList windows;
  Instance<Co_Rtf> editor;
  /// The host's own, called when an editor has closed; empty for none.
  std::function<void()> closed;
  std::uintptr_t hostWindow = 0;  // which editors stay above; 0 for none

 private:
  std::unique_ptr<Co_Rtf> MakeEditor();
};

}  // namespace lumenote
