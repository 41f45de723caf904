// The system's registry, clipboard and programs.
#include <chrono>
#include <thread>

#include "backends/native/settings/MachineRegistry.h"
#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/SystemClipboard.h"
#include "backends/win32/programs/TopWindows.h"
#include "backends/win32/programs/WinProcesses.h"
#include "backends/win32/settings/RegistryKey.h"
#include "backends/win32/settings/UserSettings.h"
#include "platform/Sandbox.h"

namespace lumenote {
namespace {

TEST(UserSettingsTest, StandWhereSaveSettingPutsThem) {
  UserSettings settings;
  const std::u16string values[] = {u"", u"Été \xD83D\xDE00", std::u16string(5000, u'x')};
  for (const std::u16string& value : values) {
    settings.Write(u"ZFenBxRtf essai", u"Hôte", u"DimRtfH", value);
    EXPECT_EQ(settings.Read(u"ZFenBxRtf essai", u"Hôte", u"DimRtfH"), value);
  }
  EXPECT_EQ(settings.Read(u"ZFenBxRtf essai", u"Hôte", u"none"), std::nullopt);
  EXPECT_EQ(settings.Read(u"ZFenBxRtf essai", u"none", u"DimRtfH"), std::nullopt);
  const std::wstring place = L"Software\\VB and VBA Program Settings\\ZFenBxRtf essai";
  EXPECT_TRUE(RegistryKey::Open(HKEY_CURRENT_USER,
                                u"Software\\VB and VBA Program Settings\\ZFenBxRtf essai\\Hôte",
                                KEY_READ)
                  .Read(u"DimRtfH"));
  EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, place.c_str()), ERROR_SUCCESS);
}

TEST(MachineRegistryTest, IsTheSystemsOwn) {
  const auto registry = MakeMachineRegistry();
  EXPECT_TRUE(registry->Read(u"software\\MICROSOFT\\Windows NT\\CurrentVersion", u"ProductName"));
  EXPECT_EQ(registry->Read(u"SOFTWARE\\Lumenote\\none", u""), std::nullopt);
}

TEST(HtmlFormatTest, TellsWhereItsFragmentIs) {
  const std::string html = "<html><body class=\"a\"><p>\xC3\xA9</p></body></html>";
  const std::string told = WithHtmlHeader(html);
  const std::string source = told.substr(told.find('<'));
  EXPECT_NE(told.find("StartHTML:" + std::string("0000000105")), told.npos) << told;
  EXPECT_EQ(source.find("<html><body class=\"a\"><!--StartFragment--><p>"), 0u);
  EXPECT_EQ(WithoutHtmlHeader(told), "<p>\xC3\xA9</p>");
  const std::pair<const char*, std::optional<std::string>> rows[] = {
      {"", std::nullopt},
      {"Version:0.9\r\nStartHTML:12", std::nullopt},
      {"<b>x</b>", "<b>x</b>"},
      {"StartFragment:99\r\nEndFragment:2\r\n<b>x</b>", "<b>x</b>"},
      {"StartFragment:1\r\nEndFragment:9\r\n<b>x</b>", "<b>x</b>"},
      {"StartFragment:99999999999999999999999\r\nEndFragment:-1\r\n<b>", "<b>"},
      {"StartHTML:-1\r\nStartFragment:0055\r\nEndFragment:0056\r\n<b>x</b>", "x"},
      {"StartHTML:28\r\nEndHTML:31\r\n\r\n<b>x</b>", "<b>"}};
  for (const auto& [data, taken] : rows) EXPECT_EQ(WithoutHtmlHeader(data), taken) << data;
}

TEST(SystemClipboardTest, HoldsTextRtfAndHtml) {
  SystemClipboard clipboard;
  clipboard.Set({.html = "<i>a</i>"});
  EXPECT_TRUE(clipboard.HasContent());
  EXPECT_EQ(clipboard.Get().html, "<i>a</i>");
  clipboard.Set({u"a\r\né\xD83D\xDE00", "{\\rtf1 a}", {}});
  EXPECT_EQ(clipboard.Get().html, std::nullopt);
  EXPECT_TRUE(clipboard.HasContent());
  EXPECT_EQ(clipboard.Get().text, u"a\r\né\xD83D\xDE00");
  EXPECT_EQ(clipboard.Get().rtf, "{\\rtf1 a}");
  clipboard.Set({u"", std::nullopt, {}});
  EXPECT_EQ(clipboard.Get().text, u"");
  EXPECT_EQ(clipboard.Get().rtf, std::nullopt);
  clipboard.Clear();
  EXPECT_FALSE(clipboard.HasContent());
}

class WinProcessesTest : public SandboxTest {
 protected:
  /// Whether it comes true within twenty seconds.
  template <class Condition>
  static bool Soon(Condition condition) {
    for (int i = 0; i < 1000 && !condition(); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return condition();
  }
  bool EndsSoon(ProcessId process) {
    return Soon([&] { return !programs_.IsRunning(process); });
  }

  const std::u16string editor_ = u"C:\\windows\\system32\\notepad.exe";
  const std::u16string shell_ = u"C:\\windows\\system32\\cmd.exe";
  TopWindows windows_;
  WinProcesses programs_{DrivePaths::OfUser(), windows_};
};

TEST_F(WinProcessesTest, WhatCannotBeStartedIsAnError) {
  Put("text.exe", "x");
  const std::u16string text = DrivePaths::OfUser().ToDrivePath(Native("text.exe"));
  EXPECT_EQ(ErrorOf([&] { programs_.Start(u"\"C:\\none.exe\""); }), 53);
  EXPECT_EQ(ErrorOf([&] { programs_.Start(u"C:\\none\\none.exe"); }), 76);
  EXPECT_EQ(ErrorOf([&] { programs_.Start(text); }), 75);
  EXPECT_EQ(ErrorOf([&] { programs_.Start(u""); }), 53);
  EXPECT_FALSE(programs_.IsRunning(0));
}

TEST_F(WinProcessesTest, AProgramRunsWhileAnythingThatItStartedDoesAndIsAskedToClose) {
  Put("Sav Notes.txt", "x");
  const std::u16string note = DrivePaths::OfUser().ToDrivePath(Native("Sav Notes.txt"));
  const ProcessId program =
      programs_.Start(shell_ + u" /c start " + editor_ + u" \"" + note + u"\"");
  EXPECT_TRUE(Soon([&] { return windows_.AnyTitleContains("Sav Notes"); }));
  EXPECT_TRUE(programs_.IsRunning(program));
  EXPECT_TRUE(programs_.StillRunning(editor_));
  EXPECT_FALSE(programs_.Terminate(editor_));
  EXPECT_TRUE(EndsSoon(program));
  EXPECT_FALSE(programs_.StillRunning(editor_));
}

TEST_F(WinProcessesTest, AProgramWithoutWindowsIsEnded) {
  const ProcessId program = programs_.Start(shell_ + u" /c for /L %i in (1,0,2) do @rem");
  EXPECT_TRUE(programs_.IsRunning(program));
  const auto error = programs_.StillRunning(shell_);
  EXPECT_TRUE(error && error->number != 0 && !error->description.empty());
  EXPECT_FALSE(programs_.Terminate(shell_));
  EXPECT_TRUE(EndsSoon(program));
}

}  // namespace
}  // namespace lumenote
