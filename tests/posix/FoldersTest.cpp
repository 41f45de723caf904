// The special folders.
#include <chrono>
#include <fstream>

#include "Sandbox.h"
#include "backends/posix/PosixFolders.h"
#include "backends/posix/UserFolders.h"

namespace lumenote {
namespace {

class FoldersTest : public SandboxTest {
 protected:
  ScopedVariable home_{"HOME", folder_.Path().c_str()};
  ScopedVariable config_{"XDG_CONFIG_HOME", nullptr};
};

TEST_F(FoldersTest, TempIsPrivateAndGoes) {
  const ScopedVariable temporary("TMPDIR", folder_.Path().c_str());
  std::string native;
  {
    const PosixFolders folders(drives_);
    const PosixFolders others(drives_);
    EXPECT_NE(folders.Temp(), others.Temp());
    EXPECT_TRUE(folders.Temp().starts_with(u"C:\\lumenote-") && folders.Temp().ends_with(u'\\'));
    native = drives_.ToNative(folders.Temp());
    EXPECT_EQ(ModeOf(native.substr(Native("").size())), 0700U);
    std::filesystem::create_directories(native + "sub");
  }
  EXPECT_FALSE(std::filesystem::exists(native));
}

TEST_F(FoldersTest, WhatWasKeptGoesAWeekAfterItsLastChange) {
  const ScopedVariable temporary("TMPDIR", folder_.Path().c_str());
  using std::filesystem::file_time_type;
  const auto age = [](const std::string& path) {
    std::filesystem::last_write_time(path, file_time_type::clock::now() - std::chrono::hours(170));
  };
  std::string kept;
  {
    TemporaryFolder folder;
    folder.Keep();
    kept = folder.Path();
    std::ofstream(kept + "/Sava.rtf") << "x";
    age(kept);
    const TemporaryFolder owned;
    age(owned.Path());
    const TemporaryFolder other;
    EXPECT_TRUE(std::filesystem::exists(owned.Path()));
  }
  { const TemporaryFolder another; }
  EXPECT_TRUE(std::filesystem::exists(kept + "/Sava.rtf"));
  age(kept + "/Sava.rtf");
  const TemporaryFolder next;
  EXPECT_FALSE(std::filesystem::exists(kept));
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
  const struct {
    std::string line;
    std::u16string folder;
  } kCases[] = {
      {"", u"C:\\Documents"},
      {"XDG_DOCUMENTS_DIR=\"$HOME/Mes \\\"textes\\\"\"", u"C:\\Mes \"textes\""},
      {"# c\nXDG_MUSIC_DIR=\"$HOME/x\"\nXDG_DOCUMENTS_DIR=\"" + Native("abs") + "/\"\n",
       u"C:\\abs"},
      {"XDG_DOCUMENTS_DIR=\"$HOME/\"", u"C:\\"},
      {"XDG_DOCUMENTS_DIR=\"$HOME/missing\"", u"C:\\Documents"},
      {"XDG_DOCUMENTS_DIR=\"relative\"", u"C:\\Documents"},
      {"XDG_DOCUMENTS_DIR=\"$HOME/abs", u"C:\\abs"},
      {"XDG_DOCUMENTS_DIR=\"\\", u"C:\\Documents"},
      {"XDG_DOCUMENTS_DIR=", u"C:\\Documents"},
  };
  const PosixFolders folders(drives_);
  for (const auto& c : kCases) {
    Put(".config/user-dirs.dirs", c.line);
    EXPECT_EQ(folders.Documents(), c.folder) << c.line;
  }
  std::filesystem::remove(Native("Documents"));
  Put(".config/user-dirs.dirs", "");
  EXPECT_EQ(folders.Documents(), u"C:\\");
}

TEST_F(FoldersTest, NoUsableHomeIsNoCrash) {
  for (const char* value : {static_cast<const char*>(nullptr), "", "relative", "/nonexistent"}) {
    const ScopedVariable home("HOME", value);
    EXPECT_NO_THROW(PosixFolders(DrivePaths("/nonexistent")).Documents());
    EXPECT_TRUE(HomeFolder().empty() || HomeFolder().starts_with('/'));
  }
}

}  // namespace
}  // namespace lumenote
