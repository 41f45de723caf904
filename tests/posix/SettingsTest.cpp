// The settings file: any content survives, other writers' too.
#include <sys/wait.h>
#include <unistd.h>

#include "Sandbox.h"
#include "backends/native/settings/IniSettings.h"
#include "backends/posix/folders/UserFolders.h"

namespace lumenote {
namespace {

class SettingsTest : public PosixTest {
 protected:
  std::string path_ = Native("deep/settings.ini");
  IniSettings settings_{path_};
};

TEST_F(SettingsTest, WritersInTwoProcessesKeepEachOthersValues) {
  constexpr int kCount = 40;
  const auto writeAll = [&](std::u16string_view section) {
    IniSettings own(path_);
    for (int i = 0; i < kCount; ++i) own.Write(u"a", section, std::u16string(1, u'A' + i), u"v");
  };
  const pid_t child = fork();
  if (child == 0) {
    writeAll(u"child");
    _exit(0);
  }
  writeAll(u"parent");
  int status = -1;
  waitpid(child, &status, 0);
  ASSERT_EQ(status, 0);
  for (int i = 0; i < kCount; ++i) {
    EXPECT_EQ(settings_.Read(u"a", u"child", std::u16string(1, u'A' + i)), u"v") << i;
    EXPECT_EQ(settings_.Read(u"a", u"parent", std::u16string(1, u'A' + i)), u"v") << i;
  }
  EXPECT_EQ(CountOfEntries("deep"), 2U);
}

TEST_F(SettingsTest, TheUsersFileIsPrivate) {
  const ScopedVariable config("XDG_CONFIG_HOME", Native("config").c_str());
  IniSettings(SettingsFile()).Write(u"a", u"s", u"k", u"v");
  EXPECT_EQ(Get("config/lumenote/settings.ini"), "[a/s]\nk=v\n");
  EXPECT_EQ(ModeOf("config/lumenote/settings.ini"), 0600U);
}

}  // namespace
}  // namespace lumenote
