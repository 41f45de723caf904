// Drive-letter paths: as text, and mapped to native ones.
#include <gtest/gtest.h>

#include "Sandbox.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

TEST(Paths, Parts) {
  const struct {
    std::u16string_view path, parent, name, base;
  } kCases[] = {
      {u"C:\\a.exe", u"C:\\", u"a.exe", u"a"},
      {u"C:\\x\\a.b.rtf", u"C:\\x", u"a.b.rtf", u"a.b"},
      {u"C:\\x.y\\note", u"C:\\x.y", u"note", u"note"},
      {u"C:\\x\\", u"C:\\x", u"", u""},
      {u"C:\\", u"C:\\", u"", u""},
      {u"note.txt", u"", u"note.txt", u"note"},
      {u".profile", u"", u".profile", u""},
      {u"ab\\c", u"ab", u"c", u"c"},
      {u"\\c", u"", u"c", u"c"},
      {u"", u"", u"", u""},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ParentFolder(c.path), c.parent) << testing::PrintToString(c.path);
    EXPECT_EQ(FileName(c.path), c.name) << testing::PrintToString(c.path);
    EXPECT_EQ(BaseName(c.path), c.base) << testing::PrintToString(c.path);
  }
  EXPECT_EQ(FoldBackslashes(u"C:\\\\a\\\\\\b"), u"C:\\a\\\\b");
}

TEST(DrivePaths, OfASandboxStayInside) {
  const DrivePaths drives("/box/c/");
  const std::pair<std::u16string_view, std::string_view> kCases[] = {
      {u"C:\\a.txt", "/box/c/a.txt"},
      {u"c:\\Été\\A.TXT", "/box/c/Été/A.TXT"},
      {u"C:\\x\\\\.\\y/z", "/box/c/x/y/z"},
      {u"C:\\..\\x\\..\\..\\etc\\passwd", "/box/c/etc/passwd"},
      {u"C:/x/../../y", "/box/c/y"},
      {u"C:\\...\\y\\", "/box/c/.../y/"},
      {u"C:\\", "/box/c/"},
      {u"C:", "/box/c/"},
      {u"C:\\a:b*\xD83D\xDE00", "/box/c/a:b*\xF0\x9F\x98\x80"}};
  for (const auto& [path, native] : kCases) EXPECT_EQ(drives.ToNative(path), native);
  for (const std::u16string_view path :
       {u"", u"C", u"C:a.txt", u"Z:\\etc\\passwd", u"D:\\a.txt", u"\\\\host\\a", u"/etc/passwd",
        u"C:\\a\xD800", u"::\\a", u"CC:\\a"}) {
    EXPECT_EQ(ErrorOf([&] { drives.ToNative(path); }), 76) << testing::PrintToString(path);
  }
  EXPECT_EQ(ErrorOf([&] { drives.ToNative(std::u16string_view(u"C:\\a\0b", 6)); }), 76);
}

TEST(DrivePaths, OfNativePaths) {
  const DrivePaths drives("/box/c");
  EXPECT_EQ(drives.ToDrivePath("/box/c/x/./é.rtf"), u"C:\\x\\é.rtf");
  EXPECT_EQ(drives.ToDrivePath("/box/c/"), u"C:\\");
  EXPECT_EQ(drives.ToDrivePath("/box/c/x/../y"), u"C:\\y");
  for (const char* native :
       {"", "/", "/box/cc/a", "/box/c/../a", "/box/c/a\\b", "/box/c/\xFF", "a"}) {
    EXPECT_EQ(ErrorOf([&] { drives.ToDrivePath(native); }), 76) << native;
  }
}

TEST(DrivePaths, OfTheUserReachEverything) {
  const TemporaryFolder home;
  const ScopedVariable data("XDG_DATA_HOME", home.Path().c_str());
  const ScopedVariable chosen("LUMENOTE_DRIVE_C", nullptr);
  const DrivePaths drives = DrivePaths::OfUser();
  const std::string driveC = home.Path() + "/lumenote/drive_c";
  EXPECT_TRUE(std::filesystem::is_directory(driveC));
  EXPECT_EQ(drives.ToNative(u"C:\\a"), driveC + "/a");
  EXPECT_EQ(drives.ToNative(u"z:\\etc\\..\\a"), "/a");
  EXPECT_EQ(drives.ToDrivePath(driveC + "/a"), u"C:\\a");
  EXPECT_EQ(drives.ToDrivePath("/a/b/"), u"Z:\\a\\b");
  EXPECT_EQ(drives.ToDrivePath("/"), u"Z:\\");
  const std::u16string relative = drives.ToDrivePath("some.rtf");
  EXPECT_EQ(drives.ToNative(relative), std::filesystem::current_path() / "some.rtf");
}

TEST(DrivePaths, ChosenByTheEnvironment) {
  const TemporaryFolder folder;
  {
    const ScopedVariable chosen("LUMENOTE_DRIVE_C", folder.Path().c_str());
    EXPECT_EQ(DrivePaths::OfUser().ToNative(u"C:\\a"), folder.Path() + "/a");
  }
  const ScopedVariable root("LUMENOTE_DRIVE_C", "/");
  EXPECT_EQ(DrivePaths::OfUser().ToNative(u"C:\\a"), "/a");
  EXPECT_EQ(DrivePaths::OfUser().ToDrivePath("/a"), u"C:\\a");
}

}  // namespace
}  // namespace lumenote
