// Temporary folders and their owners.
#include <chrono>
#include <future>
#include <optional>

#include "Sandbox.h"
#include "backends/native/folders/NativeFolders.h"

namespace lumenote {
namespace {

class TempFoldersTest : public SandboxTest {
 protected:
  DrivePaths around_{ParentOf(folder_.Path())};
};

TEST_F(TempFoldersTest, EachGoesWithItsOwnerAndItsContent) {
  NativeFolders folders(around_);
  const std::unique_ptr<TempFolder> other = folders.MakeTemp();
  std::unique_ptr<TempFolder> temp = folders.MakeTemp();
  EXPECT_NE(temp->Path(), other->Path());
  EXPECT_TRUE(temp->Path().starts_with(u"C:\\lumenote-") && temp->Path().ends_with(u'\\'));
  const std::string native = around_.ToNative(temp->Path());
  MakeFolders(native + "sub");
  CreateNew(native + "sub/a.txt");
  SetReadOnly(native + "sub/a.txt", true);
  temp.reset();
  EXPECT_FALSE(IsOwnFolder(native));
}

TEST_F(TempFoldersTest, AProgramThatWorksInOneKeepsIt) {
  for (const bool outlivesAll : {false, true}) {
    bool inUse = true;
    std::optional<NativeFolders> folders(std::in_place, around_, [&] { return inUse; });
    std::unique_ptr<TempFolder> temp = folders->MakeTemp();
    const std::string native = around_.ToNative(temp->Path());
    temp.reset();
    EXPECT_TRUE(IsOwnFolder(native));
    inUse = outlivesAll;
    folders.reset();
    EXPECT_EQ(IsOwnFolder(native), outlivesAll);
    RemoveTree(native);
  }
}

// Some systems keep a deleted name while anybody has the file open.
TEST_F(TempFoldersTest, ProgramsThatStartLeaveTheFilesOfTheOthersAlone) {
  NativeFolders folders(around_);
  const std::unique_ptr<TempFolder> temp = folders.MakeTemp();
  const std::string path = around_.ToNative(temp->Path()) + "a.txt";
  const std::future<void> starts = std::async(std::launch::async, [] {
    for (int i = 0; i < 50; ++i) TemporaryFolder();
  });
  while (starts.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
    EXPECT_TRUE(CreateNew(path).IsOpen());
    EXPECT_EQ(RemoveFile(path), 0);
    EXPECT_FALSE(StatusOf(path));
  }
}

}  // namespace
}  // namespace lumenote
