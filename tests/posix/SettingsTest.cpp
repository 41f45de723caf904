// The settings file: any content survives, other writers' too.
#include <sys/wait.h>
#include <unistd.h>

#include "Sandbox.h"
#include "backends/native/settings/IniSettings.h"
#include "backends/posix/folders/UserFolders.h"

namespace lumenote {
namespace {

class SettingsTest : public SandboxTest {
 protected:
  std::string path_ = Native("deep/settings.ini");
  IniSettings settings_{path_};
};

TEST_F(SettingsTest, AnyNameAndValueSurvives) {
  const std::u16string_view texts[] = {
      u"",       u"  a ",     u"a=b",     u"[x]",      u"a/b",
      u"\\",     u"\\n",      u"\\u00e9", u"# c",      u"; c",
      u"\xFEFF", u"a\r\nb\n", u"\t",      u"C:\\Hôte", u"\xD83D\xDE00",
      u"\xD800", u"a\xDC00z", u"\u0085",  u"\x7F\x01", std::u16string_view(u"\0", 1)};
  for (const std::u16string_view text : texts) {
    settings_.Write(text, u"s", u"k", u"application");
    settings_.Write(u"a", text, u"k", u"section");
    settings_.Write(u"a", u"s", text, text);
  }
  const IniSettings fresh(path_);
  for (const std::u16string_view text : texts) {
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_EQ(fresh.Read(text, u"s", u"k"), u"application");
    EXPECT_EQ(fresh.Read(u"a", text, u"k"), u"section");
    EXPECT_EQ(fresh.Read(u"a", u"s", text), text);
  }
}

TEST_F(SettingsTest, MalformedLinesMeanNothingAndStay) {
  const std::string before =
      "stray=1\n; note\n[App/Sec]\r\n key = first \r\nno "
      "sign\nbad\\q=1\nx=\\u12\nx=\xFF\nkey=second\n"
      "[App/Sec\nkey=3\n[App]\nkey=4\n[a/b/c]\nc=5\n[App/Sec]\n=empty\n\n[/]\nk=6";
  Put("settings.ini", before);
  IniSettings settings(Native("settings.ini"));
  EXPECT_EQ(settings.Read(u"App", u"Sec", u"key"), u"second");
  EXPECT_EQ(settings.Read(u"App", u"Sec", u""), u"empty");
  EXPECT_EQ(settings.Read(u"App", u"Sec", u"x"), std::nullopt);
  EXPECT_EQ(settings.Read(u"", u"", u"k"), u"6");
  EXPECT_EQ(settings.Read(u"", u"", u"stray"), std::nullopt);
  settings.Write(u"App", u"Sec", u"new", u"n");
  settings.Write(u"App", u"Sec", u"key", u"third");
  std::string after = before + "\n";
  after.replace(after.find("second"), 6, "third");
  after.insert(after.find("\n[/]"), "new=n\n");
  EXPECT_EQ(Get("settings.ini"), after);
}

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

TEST_F(SettingsTest, AnothersChangeIsSeen) {
  IniSettings other(path_);
  for (const std::u16string_view value : {u"1", u"2", u"3", u"4"}) {
    other.Write(u"a", u"s", u"k", value);
    EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), value);
    const auto past = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(path_, past);
    EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), value);
  }
  EXPECT_EQ(settings_.Read(u"a", u"S", u"k"), std::nullopt);
  std::filesystem::remove(path_);
  EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), std::nullopt);
}

TEST_F(SettingsTest, FailingToWriteIsPathAccessAndHurtsNothing) {
  Put("blocked", "x");
  Put("locked.ini", "[a/s]\nk=old\n", 0444);
  const std::pair<std::string, std::optional<std::u16string>> cases[] = {
      {Native("blocked/settings.ini"), std::nullopt},
      {Native("locked.ini"), u"old"},
      {"", std::nullopt}};
  for (const auto& [path, value] : cases) {
    IniSettings settings(path);
    EXPECT_EQ(ErrorOf([&] { settings.Write(u"a", u"s", u"k", u"v"); }), 75) << path;
    EXPECT_EQ(settings.Read(u"a", u"s", u"k"), value) << path;
  }
}

TEST_F(SettingsTest, TheUsersFileIsPrivate) {
  const ScopedVariable config("XDG_CONFIG_HOME", Native("config").c_str());
  IniSettings(SettingsFile()).Write(u"a", u"s", u"k", u"v");
  EXPECT_EQ(Get("config/lumenote/settings.ini"), "[a/s]\nk=v\n");
  EXPECT_EQ(ModeOf("config/lumenote/settings.ini"), 0600U);
}

}  // namespace
}  // namespace lumenote
