// What stands behind one control: its session, its windows.
#pragma once
#include <memory>

#include "control/Session.h"
#include "editor/Co_Rtf.h"
#include "forms/Instance.h"
#include "forms/WindowList.h"
#include "platform/Folders.h"

namespace lumenote {

class Platform;

struct Component {
  explicit Component(Platform& platform);

  Session session;
  std::unique_ptr<TempFolder> temp;
  WindowList windows;
  Instance<Co_Rtf> editor;
};

}  // namespace lumenote
