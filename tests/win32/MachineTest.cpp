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
#include "backends/win32/system/SharedMemory.h"
#include "backends/win32/toolkit/drawing/PictureLibrary.h"
#include "backends/win32/view/TransferData.h"
#include "document/pictures/ByteOrder.h"
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

/// Puts bytes on the clipboard as another program does.
void Offer(UINT format, const std::string& bytes) {
  ASSERT_TRUE(OpenClipboard(nullptr));
  EmptyClipboard();
  SetClipboardData(format, SharedBytes(bytes));
  CloseClipboard();
}

std::string Numbers(std::initializer_list<std::uint32_t> numbers) {
  std::string bytes;
  for (const std::uint32_t number : numbers) AppendLittleEndian(number, 4, bytes);
  return bytes;
}

/// Two pixels, the left one red.
std::string Bitmap(std::uint32_t header = 40) {
  return Numbers({header, 2, 1, 0x180001, 0, 8, 0, 0, 0, 0}) + std::string(header - 40, '\0') +
         std::string("\0\0\xFF\xFF\xFF\xFF\0\0", 8);
}

/// Width, height and the first pixel, "none" without an image.
std::string Seen(const std::vector<std::string>& images) {
  const PictureLibrary library;
  const auto image = images.size() == 1 ? library.Decode(images.front()) : nullptr;
  if (!image) return "none";
  Gdiplus::Color first;
  image->GetPixel(0, 0, &first);
  return std::to_string(image->GetWidth()) + "x" + std::to_string(image->GetHeight()) +
         (first.GetValue() == 0xFFFF0000 ? " red" : " other");
}

TEST(SystemClipboardTest, ImagesComeAsTheyAreOrAsBitmaps) {
  SystemClipboard clipboard;
  Offer(CF_DIB, Bitmap());
  const std::vector<std::string> made = clipboard.Get().images;
  ASSERT_EQ(Seen(made), "2x1 red");
  const UINT png = RegisterClipboardFormatW(L"PNG");
  const std::tuple<UINT, std::string, const char*> rows[] = {
      {CF_DIBV5, Bitmap(124), "2x1 red"},
      {png, made.front(), "2x1 red"},
      {png, "\x89PNG", "none"},
      {RegisterClipboardFormatW(L"JFIF"), "<html>", "none"},
      {CF_DIB, Bitmap().substr(0, 43), "none"},
      {CF_DIB, std::string(3, '\xFF'), "none"},
      {CF_DIB, Numbers({0xFFFFFFFF, 2, 1, 0x180001, 0, 0, 0, 0, 0, 0}), "none"},
      {CF_DIB, Numbers({40, 0x7FFFFFFF, 0x7FFFFFFF, 0x200001, 0, 0, 0, 0, 0, 0, 0}), "none"},
      {CF_DIB, Numbers({40, 0, 0, 0, 0, 0, 0, 0, 0xFFFFFFFF, 0, 0}), "none"}};
  for (const auto& [format, bytes, seen] : rows) {
    Offer(format, bytes);
    EXPECT_TRUE(clipboard.HasContent());
    EXPECT_EQ(Seen(clipboard.Get().images), seen) << format << " " << bytes.size();
  }
  clipboard.Set({.text = u"", .rtf = "{\\rtf1}", .images = made});
  EXPECT_TRUE(IsClipboardFormatAvailable(CF_DIB));
  EXPECT_TRUE(clipboard.Get().images.empty()) << "richer content accompanies it";
  clipboard.Set({.images = made});
  EXPECT_EQ(clipboard.Get().images, made);
}

/// Files on the clipboard, as a drag offers them, too.
class CopiedFilesTest : public SandboxTest {
 protected:
  void Copy(const std::vector<std::string>& names) {
    std::u16string list;
    for (const std::string& name : names) list += Drive(name) + u'\0';
    list += u'\0';
    Offer(CF_HDROP, Numbers({20, 0, 0, 0, 1}) +
                        std::string(reinterpret_cast<const char*>(list.data()), 2 * list.size()));
  }
  std::u16string Drive(const std::string& name) {
    return DrivePaths::OfUser().ToDrivePath(Native(name));
  }
};

TEST_F(CopiedFilesTest, AreImagesIfAllOfThemAreElseTheirNames) {
  const OleScope ole;
  const std::string jpeg = "\xFF\xD8\xFF\xE0";
  Put("red.bmp", "BM" + Numbers({0, 0, 54}) + Bitmap());
  Put("flower.jpg", jpeg);
  Put("note.txt", "x");
  Put("large.jpg", jpeg + std::string(kMostImageBytes, 'x'));
  const auto content = [&](const std::vector<std::string>& names) {
    Copy(names);
    IDataObject* data = nullptr;
    OleGetClipboard(&data);
    const ComOwner<IDataObject> owner(data);
    const ClipboardContent dragged = ReadTransfer(*data);
    const ClipboardContent copied = SystemClipboard().Get();
    EXPECT_TRUE(HasTransfer(*data));
    EXPECT_EQ(dragged.images, copied.images);
    EXPECT_EQ(dragged.text, copied.text);
    return copied;
  };
  EXPECT_EQ(Seen(content({"red.bmp"}).images), "2x1 red");
  const ClipboardContent two = content({"flower.jpg", "red.bmp"});
  EXPECT_EQ(two.images.size(), 2u);
  EXPECT_EQ(two.images.front(), jpeg);
  EXPECT_EQ(two.imageNames, Drive("flower.jpg") + u"\r\n" + Drive("red.bmp"));
  EXPECT_EQ(content({"flower.jpg", "note.txt"}).text,
            Drive("flower.jpg") + u"\r\n" + Drive("note.txt"));
  EXPECT_TRUE(content({"flower.jpg", "large.jpg"}).imagesTooLarge);
  EXPECT_TRUE(content({"none.jpg"}).images.empty());
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
