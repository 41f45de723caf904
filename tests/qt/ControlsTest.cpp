// Two controls on the desktop's platform.
#include <QApplication>
#include <filesystem>
#include <gtest/gtest.h>

#include "backends/posix/folders/TemporaryFolder.h"
#include "control/Component.h"
#include "lumenote/CoBxRtf.h"
#include "lumenote/QtPlatform.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

/// The user's drive and folders, away from the real ones.
struct ControlsTest : testing::Test {
  ControlsTest() {
    for (const char* name : {"HOME", "TMPDIR", "LUMENOTE_DRIVE_C"})
      qputenv(name, folder.Path().c_str());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"}) qunsetenv(name);
    fs::create_directories(folder.Path() + "/Program Files/qjot");
    fs::create_symlink("/bin/true", folder.Path() + "/Program Files/qjot/qjot.exe");
  }

  TemporaryFolder folder;
};

TEST_F(ControlsTest, EachFindsItsOwnNoteAfterARoundTrip) {
  QtPlatform platform;
  CoBxRtf first(platform);
  CoBxRtf second(platform);
  for (CoBxRtf* control : {&first, &second}) {
    control->pCouleurFen(u"0");
    control->pStrOrchm(control == &first ? u"note une" : u"note deux");
    control->ShowMicroEdit();
    control->Parts().editor.Get().Pop.mnuPopQjot.UserClick();
  }
  const auto watching = [](CoBxRtf& control) {
    return control.Parts().editor.Get().TimerWpd.Enabled();
  };
  while (watching(first) || watching(second))
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(first.pStrOrchm(), u"note une");
  EXPECT_EQ(second.pStrOrchm(), u"note deux");
}

}  // namespace
}  // namespace lumenote
