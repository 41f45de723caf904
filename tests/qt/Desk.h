// What the tests work on: a surface with its layout, a platform, a window.
#pragma once
#include <stdexcept>
#include <string>
#include <vector>

#include "backends/qt/QtBackend.h"
#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/Timer.h"
#include "forms/controls/Frame.h"
#include "forms/controls/Label.h"
#include "forms/controls/RichTextBox.h"
#include "forms/controls/StatusBar.h"
#include "lumenote/Platform.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"

namespace lumenote {

/// A surface as the backend makes it, without a window.
struct TestSurface {
  explicit TestSurface(double width = 300) { layouter.Width(width); }

  MemoryClipboard clipboard;
  MemoryFiles files;
  QtLayouter layouter;
  PieceBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
};

class TestPlatform final : public Platform {
 public:
  QtBackend& Windows() override { return windows; }
  Files& FileSystem() override { return files; }
  Clipboard& SystemClipboard() override { return clipboard; }
  Settings& UserSettings() override { throw std::logic_error("no settings"); }
  StateFolder& State() override { throw std::logic_error("no state"); }
  Folders& SpecialFolders() override { throw std::logic_error("no folders"); }

  const Fonts& SystemFonts() override { throw std::logic_error("no fonts"); }
  const Registry& MachineRegistry() override { throw std::logic_error("no registry"); }
  const ProgramFolders& InstalledPrograms() override { throw std::logic_error("no programs"); }
  Processes& Programs() override { throw std::logic_error("no programs"); }

  QtBackend windows;
  MemoryClipboard clipboard;
  MemoryFiles files;
};

/// A window with a control and a menu of each kind; counts what it is told.
class TestForm final : public Form {
 public:
  explicit TestForm(WindowList& windows, std::string name = "TestForm")
      : Form(windows, std::move(name), {1500, 1500, 6000, 4500}, u"Essai") {}
  ~TestForm() override { Unload(); }

  Frame frame{*this, "frame", {80, 84, 5700, 3600}, u"Cadre"};
  Label label{frame, "label", {3000, 0, 1700, 195}, u"Format"};
  RichTextBox box{frame, "box", {30, 270, 5640, 3200}};
  StatusBar bar{*this, "bar", 2};
  Timer timer{*this, "timer"};
  Menu popup{*this, "popup", u"popup", false};
  Menu cut{popup, "cut", u"&Couper"};
  Menu line{popup, "line", u"-"};
  Menu more{popup, "more", u"Plus"};
  Menu inner{more, "inner", u"Dedans"};

  DocumentSurface& Surface() { return dynamic_cast<DocumentSurface&>(box.Surface()); }

  int activations = 0;
  int resizes = 0;

 private:
  void Form_Activate() override { ++activations; }
  void Form_Resize() override { ++resizes; }
};

}  // namespace lumenote
