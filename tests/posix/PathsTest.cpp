// Drive-letter paths: as text, and mapped to native ones.
#include <gtest/gtest.h>

#include "Sandbox.h"
#include "base/Rows.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

TEST(Paths, Parts) {
  for (const auto& [path, parent, name, base] : Rows16<4>(R"(
C:\a.exe | C:\ | a.exe | a ¦ C:\x\a.b.rtf | C:\x | a.b.rtf | a.b ¦ C:\x.y\note | C:\x.y | note | note
C:\x\ | C:\x | "" | "" ¦ C:\ | C:\ | "" | "" ¦ note.txt | "" | note.txt | note
.profile | "" | .profile | "" ¦ ab\c | ab | c | c ¦ \c | "" | c | c ¦ "" | "" | "" | ""
)")) {
    EXPECT_EQ(ParentFolder(path), parent) << ToUtf8(path);
    EXPECT_EQ(FileName(path), name) << ToUtf8(path);
    EXPECT_EQ(BaseName(path), base) << ToUtf8(path);
  }
  EXPECT_EQ(FoldBackslashes(u"C:\\\\a\\\\\\b"), u"C:\\a\\\\b");
}

TEST(DrivePaths, OfASandboxStayInside) {
  const DrivePaths drives("/box/c/");
  for (const auto& [path, native] : Rows<2>(R"(
C:\a.txt | /box/c/a.txt ¦ c:\Été\A.TXT | /box/c/Été/A.TXT ¦ C:\x\\.\y/z | /box/c/x/y/z
C:\..\x\..\..\etc\passwd | /box/c/etc/passwd ¦ C:/x/../../y | /box/c/y ¦ C:\...\y\ | /box/c/.../y/
C:\ | /box/c/ ¦ C: | /box/c/ ¦ C:\a:b*😀 | /box/c/a:b*😀
)"))
    EXPECT_EQ(drives.ToNative(FromUtf8(path)), native);
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
  for (const std::string& path : {folder.Path(), std::string("/")}) {
    const ScopedVariable chosen("LUMENOTE_DRIVE_C", path.c_str());
    EXPECT_EQ(DrivePaths::OfUser().ToNative(u"C:\\a"), path == "/" ? "/a" : path + "/a");
    EXPECT_TRUE(path != "/" || DrivePaths::OfUser().ToDrivePath("/a") == u"C:\\a");
  }
}

}  // namespace
}  // namespace lumenote
