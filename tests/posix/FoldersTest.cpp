// The special folders.
#include <chrono>
#include <fstream>

#include "Sandbox.h"
#include "backends/native/folders/NativeFolders.h"
#include "backends/posix/folders/UserFolders.h"
#include "base/Rows.h"

namespace lumenote {
namespace {

class FoldersTest : public PosixTest {
 protected:
  ScopedVariable home_{"HOME", folder_.Path().c_str()};
  ScopedVariable config_{"XDG_CONFIG_HOME", nullptr};
  ScopedVariable temporary_{"TMPDIR", folder_.Path().c_str()};
};

TEST_F(FoldersTest, TempIsPrivate) {
  NativeFolders folders(drives_);
  const std::unique_ptr<TempFolder> temp = folders.MakeTemp();
  const std::string native = drives_.ToNative(temp->Path());
  EXPECT_EQ(ModeOf(native.substr(Native("").size())), 0700U);
}

/// Gives a folder and all it holds a time of some days ago.
void Age(const std::filesystem::path& folder) {
  const auto then = std::filesystem::file_time_type::clock::now() - std::chrono::hours(170);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_symlink()) std::filesystem::last_write_time(entry, then);
  }
  std::filesystem::last_write_time(folder, then);
}

TEST_F(FoldersTest, WhatWasKeptGoesAWeekAfterItsLastChange) {
  std::string kept;
  {
    TemporaryFolder folder;
    folder.Keep();
    kept = folder.Path();
    const TemporaryFolder owned;
    Age(owned.Path());
    const TemporaryFolder other;
    EXPECT_TRUE(std::filesystem::exists(owned.Path()));
  }
  std::filesystem::create_directories(kept + "/in/depth");
  for (const bool inUse : {true, false}) {
    std::ofstream(kept + "/in/depth/Sava.rtf") << "x";
    Age(kept);
    if (inUse) std::ofstream(kept + "/in/depth/Sava.rtf") << "in use";
    { const TemporaryFolder next; }
    EXPECT_EQ(std::filesystem::exists(kept + "/in/depth/Sava.rtf"), inUse);
  }
  EXPECT_FALSE(std::filesystem::exists(kept));
}

TEST_F(FoldersTest, WhatIsNotMarkedAsOursStays) {
  const std::string mark = std::string("/") + TemporaryFolder::kMarkName;
  TemporaryFolder ours;
  ours.Keep();
  const std::string names[] = {"lumenote-herbes", "lumenote-autres", "lumenote-copied"};
  for (const std::string& name : names) {
    std::filesystem::create_directory(Native(name));
    Put(name + "/note.rtf", "{\\rtf1}");
  }
  Put(names[1] + mark, "Temporary");
  std::filesystem::create_symlink(ours.Path() + mark, Native(names[2] + mark));
  for (const std::string& name : names) Age(Native(name));
  std::filesystem::create_directory_symlink(names[0], Native("lumenote-linked"));
  { const TemporaryFolder next; }
  for (const std::string& name : names) EXPECT_EQ(Get(name + "/note.rtf"), "{\\rtf1}");
  std::filesystem::remove_all(ours.Path());
}

TEST_F(FoldersTest, AnUnusableTempVariableIsPassedOver) {
  for (const char* value : {"", "relative", "/nonexistent/folder"}) {
    const ScopedVariable temporary("TMPDIR", value);
    EXPECT_TRUE(TemporaryFolder().Path().starts_with("/tmp/lumenote-")) << value;
  }
}

TEST_F(FoldersTest, DocumentsAreWhatTheConfigurationSays) {
  for (const char* name : {".config", "Documents", "Mes \"textes\"", "abs"}) {
    std::filesystem::create_directory(Native(name));
  }
  NativeFolders folders(drives_);
  for (const auto& [line, folder] : Rows<2>(R"(
"" | C:\Documents ¦ XDG_DOCUMENTS_DIR="$HOME/Mes \"textes\"" | C:\Mes "textes"
# c␊XDG_MUSIC_DIR="$HOME/x"␊XDG_DOCUMENTS_DIR="@/abs/"␊ | C:\abs ¦ XDG_DOCUMENTS_DIR="$HOME/" | C:\
XDG_DOCUMENTS_DIR="$HOME/missing" | C:\Documents ¦ XDG_DOCUMENTS_DIR="relative" | C:\Documents
XDG_DOCUMENTS_DIR="$HOME/abs | C:\abs ¦ XDG_DOCUMENTS_DIR="\ | C:\Documents
XDG_DOCUMENTS_DIR= | C:\Documents
)")) {
    Put(".config/user-dirs.dirs", Replaced(Replaced(line, "␊", "\n"), "@", folder_.Path()));
    EXPECT_EQ(ToUtf8(folders.Documents()), folder) << line;
  }
  std::filesystem::remove(Native("Documents"));
  Put(".config/user-dirs.dirs", "");
  EXPECT_EQ(folders.Documents(), u"C:\\");
}

TEST_F(FoldersTest, NoUsableHomeIsNoCrash) {
  for (const char* value : {static_cast<const char*>(nullptr), "", "relative", "/nonexistent"}) {
    const ScopedVariable home("HOME", value);
    EXPECT_NO_THROW(NativeFolders(DrivePaths("/nonexistent")).Documents());
    EXPECT_TRUE(HomeFolder().empty() || HomeFolder().starts_with('/'));
  }
}

}  // namespace
}  // namespace lumenote
