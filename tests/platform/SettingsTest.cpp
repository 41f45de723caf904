// The settings file: any content survives, other writers' too.
#include "Sandbox.h"
#include "backends/native/settings/IniRegistry.h"
#include "backends/native/settings/IniSettings.h"

namespace lumenote {
namespace {

class IniSettingsTest : public SandboxTest {
 protected:
  std::string path_ = Native("deep/settings.ini");
  IniSettings settings_{path_};
};

TEST_F(IniSettingsTest, AnyNameAndValueSurvives) {
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

TEST_F(IniSettingsTest, MalformedLinesMeanNothingAndStay) {
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

TEST_F(IniSettingsTest, AnothersChangeIsSeen) {
  IniSettings other(path_);
  for (const std::u16string_view value : {u"1", u"2", u"3", u"4"}) {
    other.Write(u"a", u"s", u"k", value);
    EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), value);
    ShiftTime(path_, -3600);
    EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), value);
  }
  EXPECT_EQ(settings_.Read(u"a", u"S", u"k"), std::nullopt);
  RemoveFile(path_);
  EXPECT_EQ(settings_.Read(u"a", u"s", u"k"), std::nullopt);
}

TEST_F(IniSettingsTest, FailingToWriteIsPathAccessAndHurtsNothing) {
  Put("blocked", "x");
  Put("locked.ini", "[a/s]\nk=old\n");
  SetReadOnly(Native("locked.ini"), true);
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

TEST_F(IniSettingsTest, TheFirstFileThatHoldsAValueCounts) {
  Put("a.ini", "[Machine/SOFTWARE\\\\Ab]\nPath=one\n");
  Put("b.ini", "[Machine/Software\\\\ab]\nPath=two\n=default\n");
  const IniRegistry registry({Native("none.ini"), Native("a.ini"), Native("b.ini")});
  EXPECT_EQ(registry.Read(u"software\\AB", u"Path"), u"one");
  EXPECT_EQ(registry.Read(u"software\\AB", u""), u"default");
  EXPECT_EQ(registry.Read(u"software", u"Path"), std::nullopt);
}

}  // namespace
}  // namespace lumenote
