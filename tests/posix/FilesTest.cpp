// Files: what is kept, refused, and left alone when something fails.
#include <csignal>
#include <fcntl.h>
#include <map>
#include <sys/resource.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "Sandbox.h"
#include "backends/posix/BesideFile.h"
#include "backends/posix/PosixFiles.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

class FilesTest : public SandboxTest {
 protected:
  PosixFiles files_{drives_};
};

TEST_F(FilesTest, WritesAndReadsBytes) {
  const std::string bytes("a\0\r\n\xFF", 5);
  const mode_t mask = umask(027);
  files_.Write(u"C:\\Été.rtf", bytes);
  umask(mask);
  EXPECT_EQ(Get("Été.rtf"), bytes);
  EXPECT_EQ(files_.ReadAll(u"C:\\Été.rtf"), bytes);
  EXPECT_EQ(ModeOf("Été.rtf"), 0640U);
  EXPECT_TRUE(files_.Exists(u"C:\\Été.rtf"));
  EXPECT_FALSE(files_.Exists(u"C:\\été.rtf"));
  files_.Write(u"C:\\Été.rtf", "");
  EXPECT_EQ(files_.ReadAll(u"C:\\Été.rtf"), "");
  EXPECT_EQ(CountOfEntries(), 1U);
}

TEST_F(FilesTest, WritingKeepsModeAndOwner) {
  Put("a.txt", "old", 0751);
  const bool isRoot = geteuid() == 0;
  if (isRoot && chown(Native("a.txt").c_str(), 1234, 4321) != 0) FAIL();
  files_.Write(u"C:\\a.txt", "new");
  struct stat info;
  ASSERT_EQ(stat(Native("a.txt").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0751U);
  EXPECT_EQ(info.st_uid, isRoot ? 1234 : geteuid());
  EXPECT_EQ(info.st_gid, isRoot ? 4321 : getegid());
}

TEST_F(FilesTest, WritingKeepsAccessListAndAttributes) {
  // A version, then tag, rights and id of each entry: the owner, user 1234, group, mask, others.
  constexpr unsigned char kList[] = {2,  0, 0, 0,                          //
                                     1,  0, 6, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     2,  0, 6, 0, 0xD2, 4,    0,    0,     //
                                     4,  0, 4, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     16, 0, 6, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     32, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF};
  const std::map<std::string, std::string> attributes{
      {"user.source", "herbier"},
      {"user.empty", ""},
      {"system.posix_acl_access", {std::begin(kList), std::end(kList)}}};
  Put("a.txt", "old");
  for (const auto& [name, value] : attributes)
    if (setxattr(Native("a.txt").c_str(), name.c_str(), value.data(), value.size(), 0) != 0)
      GTEST_SKIP() << "no " << name << " here";
  const mode_t mode = ModeOf("a.txt");
  files_.Write(u"C:\\a.txt", "new");
  EXPECT_EQ(Get("a.txt"), "new");
  EXPECT_EQ(ModeOf("a.txt"), mode);
  for (const auto& [name, value] : attributes) {
    char bytes[100];
    const ssize_t size = getxattr(Native("a.txt").c_str(), name.c_str(), bytes, sizeof bytes);
    EXPECT_EQ(std::string(bytes, size < 0 ? 0 : static_cast<std::size_t>(size)), value) << name;
  }
}

TEST_F(FilesTest, AReadOnlyFileIsRefusedWhoeverRuns) {
  Put("a.txt", "old", 0477);
  EXPECT_TRUE(files_.IsReadOnly(u"C:\\a.txt"));
  EXPECT_EQ(ErrorOf([&] { files_.Write(u"C:\\a.txt", "new"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Delete(u"C:\\a.txt", false); }), 70);
  EXPECT_EQ(Get("a.txt"), "old");
  EXPECT_EQ(CountOfEntries(), 1U);
  files_.Delete(u"C:\\a.txt", true);
  EXPECT_EQ(CountOfEntries(), 0U);
}

TEST_F(FilesTest, AFullDiskLeavesTheOldFile) {
  Put("a.txt", "old");
  struct rlimit limit;
  getrlimit(RLIMIT_FSIZE, &limit);
  const struct rlimit tight = {10, limit.rlim_max};
  signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &tight);
  const int error = ErrorOf([&] { files_.Write(u"C:\\a.txt", std::string(1000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(error, 61);
  EXPECT_EQ(Get("a.txt"), "old");
  EXPECT_EQ(CountOfEntries(), 1U);
}

TEST_F(FilesTest, WritingThroughALinkKeepsTheLink) {
  fs::create_directory(Native("sub"));
  Put("sub/real.txt", "old", 0600);
  fs::create_symlink("sub/real.txt", Native("near"));
  fs::create_symlink("../near", Native("sub/far"));
  files_.Write(u"C:\\sub\\far", "new");
  EXPECT_TRUE(fs::is_symlink(Native("sub/far")) && fs::is_symlink(Native("near")));
  EXPECT_EQ(Get("sub/real.txt"), "new");
  EXPECT_EQ(ModeOf("sub/real.txt"), 0600U);
  fs::create_symlink("sub/fresh.txt", Native("dangling"));
  EXPECT_FALSE(files_.Exists(u"C:\\dangling"));
  files_.Write(u"C:\\dangling", "fresh");
  EXPECT_EQ(Get("sub/fresh.txt"), "fresh");
  fs::create_symlink("loop", Native("loop"));
  EXPECT_EQ(ErrorOf([&] { files_.Write(u"C:\\loop", "x"); }), 75);
  files_.Delete(u"C:\\near", false);
  EXPECT_EQ(Get("sub/real.txt"), "new");
}

/// What a save that dies leaves beside its target.
std::string LeftBeside(const std::string& target) {
  std::string name;
  { const Descriptor file = CreateBeside(target, 0600, name); }
  std::ofstream(name) << "leftover";
  return name;
}

TEST_F(FilesTest, ASaveRemovesWhatDeadSavesOfItsNoteLeft) {
  std::string living;
  const Descriptor lock = CreateBeside(Native("a.txt"), 0600, living);
  const std::string dead = LeftBeside(Native("a.txt"));
  const std::string other = LeftBeside(Native("b.txt"));
  fs::create_symlink("a.txt", dead.substr(0, dead.size() - 1) + "2");
  files_.Write(u"C:\\a.txt", "new");
  EXPECT_EQ(Get("a.txt"), "new");
  EXPECT_TRUE(fs::exists(living) && fs::exists(other) && !fs::exists(dead));
  EXPECT_EQ(CountOfEntries(), 4U);
}

TEST_F(FilesTest, SavesOfOneNoteAtATimeLeaveOneOfThemWhole) {
  std::vector<std::thread> threads;
  for (char c = 'a'; c < 'i'; ++c)
    threads.emplace_back([this, c] {
      for (int i = 0; i < 20; ++i) files_.Write(u"C:\\a.txt", std::string(5000, c));
    });
  for (std::thread& thread : threads) thread.join();
  const std::string last = Get("a.txt");
  EXPECT_EQ(last, std::string(5000, last[0]));
  EXPECT_EQ(CountOfEntries(), 1U);
}

TEST_F(FilesTest, FailuresHaveTheirNumbers) {
  fs::create_directory(Native("folder"));
  Put("file", "x");
  ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0666), 0);
  const struct {
    std::u16string path;
    int read, look, write;
  } kCases[] = {
      {u"C:\\missing", 53, 53, 0},
      {u"C:\\none\\missing", 76, 76, 76},
      {u"C:\\file\\missing", 76, 76, 76},
      {u"C:\\file\\", 76, 76, 76},
      {u"C:\\folder", 75, 53, 75},
      {u"C:\\pipe", 75, 53, 75},
      {u"C:\\none\\", 76, 76, 76},
      {u"D:\\file", 76, 76, 76},
      {u"", 76, 76, 76},
      {u"C:\\" + std::u16string(300, u'x'), 75, 75, 75},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::PrintToString(c.path));
    EXPECT_FALSE(files_.Exists(c.path));
    EXPECT_EQ(ErrorOf([&] { files_.ReadAll(c.path); }), c.read);
    EXPECT_EQ(ErrorOf([&] { files_.ModificationTime(c.path); }), c.look);
    EXPECT_EQ(ErrorOf([&] { files_.IsReadOnly(c.path); }), c.look);
    EXPECT_EQ(ErrorOf([&] { files_.Delete(c.path, true); }), c.look);
    EXPECT_EQ(ErrorOf([&] { files_.Write(c.path, "x"); }), c.write);
  }
  EXPECT_TRUE(fs::is_directory(Native("folder")));
}

TEST_F(FilesTest, TimesHaveFullPrecision) {
  Put("a", "x");
  const struct timespec times[] = {{1, 0}, {1700000000, 123456789}};
  ASSERT_EQ(utimensat(AT_FDCWD, Native("a").c_str(), times, 0), 0);
  EXPECT_EQ(files_.ModificationTime(u"C:\\a"), 1700000000123456789);
}

TEST_F(FilesTest, CopiesContentAndMode) {
  Put("from", "content", 0500);
  Put("to", "a longer old content", 0666);
  Put("locked", "old", 0444);
  files_.Copy(u"C:\\from", u"C:\\to");
  EXPECT_EQ(Get("to"), "content");
  EXPECT_EQ(ModeOf("to"), 0500U);
  EXPECT_EQ(ErrorOf([&] { files_.Copy(u"C:\\from", u"C:\\locked"); }), 70);
  EXPECT_EQ(ErrorOf([&] { files_.Copy(u"C:\\missing", u"C:\\new"); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.Copy(u"C:\\from", u"C:\\none\\new"); }), 76);
  EXPECT_EQ(Get("locked"), "old");
  EXPECT_EQ(CountOfEntries(), 3U);
}

TEST_F(FilesTest, MovesWithoutReplacing) {
  Put("from", "content", 0500);
  Put("taken", "old");
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\from", u"C:\\taken"); }), 70);
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\missing", u"C:\\new"); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\from", u"C:\\none\\new"); }), 76);
  EXPECT_EQ(Get("taken") + Get("from"), "oldcontent");
  files_.Move(u"C:\\from", u"C:\\new");
  EXPECT_EQ(Get("new"), "content");
  EXPECT_EQ(CountOfEntries(), 2U);
}

TEST_F(FilesTest, MovesAcrossFileSystems) {
  std::string other = "/dev/shm/lumenote-XXXXXX";
  struct stat here, there;
  const bool two = mkdtemp(other.data()) && stat(other.c_str(), &there) == 0 &&
                   stat(Native("").c_str(), &here) == 0 && here.st_dev != there.st_dev;
  if (!two) GTEST_SKIP() << "no second file system";
  fs::create_directory_symlink(other, Native("far"));
  Put("from", "content", 0540);
  Put("taken", "old");
  const FileTime time = files_.ModificationTime(u"C:\\from");
  files_.Move(u"C:\\from", u"C:\\far\\to");
  EXPECT_EQ(files_.ModificationTime(u"C:\\far\\to"), time);
  EXPECT_EQ(Get("far/to") + Get("from"), "content(none)");
  EXPECT_EQ(ModeOf("far/to"), 0540U);
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\far\\to", u"C:\\taken"); }), 70);
  EXPECT_EQ(Get("far/to") + Get("taken"), "contentold");
  fs::remove_all(other);
}

}  // namespace
}  // namespace lumenote
