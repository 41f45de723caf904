// Files: what is kept, refused, and left alone when something fails.
#include <csignal>
#include <fcntl.h>
#include <map>
#include <sys/resource.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "Sandbox.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/state/NativeStateFolder.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

class FilesTest : public PosixTest {
 protected:
  struct stat StatOf(const std::string& name) const {
    struct stat info = {};
    EXPECT_EQ(stat(Native(name).c_str(), &info), 0);
    return info;
  }

  NativeStateFolder state_{Native("state"), drives_};
  NativeFiles files_{drives_, &state_};
};

/// The error that `act` raises in a process of its own.
template <class Act>
int ErrorInChild(Act act) {
  const pid_t child = fork();
  if (child == 0) _exit(ErrorOf(act));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 255;
}

TEST_F(FilesTest, WritingKeepsModeAndOwner) {
  const mode_t mask = umask(027);
  files_.Write(u"C:\\new.txt", "new");
  umask(mask);
  EXPECT_EQ(ModeOf("new.txt"), 0640U);
  Put("a.txt", "old", 0751);
  const bool isRoot = geteuid() == 0;
  if (isRoot && chown(Native("a.txt").c_str(), 1234, 4321) != 0) FAIL();
  files_.Write(u"C:\\a.txt", "new");
  const struct stat info = StatOf("a.txt");
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
  // A list that the folder gives new files is not the old file's.
  Put("b.txt", "old");
  ASSERT_EQ(setxattr(Native("").c_str(), "system.posix_acl_default", kList, sizeof kList, 0), 0);
  files_.Write(u"C:\\b.txt", "new");
  EXPECT_EQ(listxattr(Native("b.txt").c_str(), nullptr, 0), 0);
}

TEST_F(FilesTest, AFullDiskLeavesTheOldFile) {
  Put("a.txt", "old");
  for (const auto write : {&NativeFiles::Write, &NativeFiles::AppendLines}) {
    const auto onFullDisk = [&] {
      const struct rlimit tight = {10, 10};
      setrlimit(RLIMIT_FSIZE, &tight);
      signal(SIGXFSZ, SIG_IGN);
      (files_.*write)(u"C:\\a.txt", std::string(1000, 'x'));
    };
    EXPECT_EQ(ErrorInChild(onFullDisk), 61);
    EXPECT_EQ(Get("a.txt"), "old");
    EXPECT_EQ(CountOfEntries(), 1U);
  }
}

TEST_F(FilesTest, AnothersFileAndAClosedFolderAreWrittenInPlace) {
  if (geteuid() != 0) GTEST_SKIP() << "needs another user";
  constexpr uid_t kUser = 1234;
  chmod(Native("").c_str(), 0711);
  const struct {
    std::string folder;
    uid_t owner;
    mode_t folderMode;
    uid_t fileOwner;
    mode_t mode;
  } kCases[] = {{"closed", 0, 0755, kUser, 0600},
                {"anothers", kUser, 0755, 4321, 0666},
                {"sticky", 0, 01777, 4321, 0666}};
  const auto give = [this](const std::string& name, uid_t owner) {
    if (chown(Native(name).c_str(), owner, owner) != 0) FAIL() << name;
  };
  fs::create_directory(Native("state"));
  give("state", kUser);
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.folder);
    const std::string note = c.folder + "/a.txt";
    fs::create_directory(Native(c.folder));
    Put(note, "old", c.mode);
    give(note, c.fileOwner);
    give(c.folder, c.owner);
    chmod(Native(c.folder).c_str(), c.folderMode);
    const std::u16string path = drives_.ToDrivePath(Native(note));
    const auto asUser = [&] {
      if (setgid(kUser) != 0 || setuid(kUser) != 0) _exit(255);
      files_.Write(path, "new");
    };
    EXPECT_EQ(ErrorInChild(asUser), 0);
    EXPECT_EQ(Get(note), "new");
    EXPECT_EQ(StatOf(note).st_uid, c.fileOwner);
    EXPECT_EQ(ModeOf(note), c.mode);
  }
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
  files_.AppendLines(u"C:\\near", "er");
  EXPECT_EQ(Get("sub/real.txt"), "new\r\ner");
  fs::create_symlink("loop", Native("loop"));
  EXPECT_EQ(ErrorOf([&] { files_.Write(u"C:\\loop", "x"); }), 75);
  files_.Delete(u"C:\\near", false);
  EXPECT_EQ(Get("sub/real.txt"), "new\r\ner");
}

TEST_F(FilesTest, ADeviceIsNoFileAndANameMayBeTooLong) {
  ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0666), 0);
  const struct {
    std::u16string path;
    int look;
  } cases[] = {{u"C:\\pipe", 53}, {u"C:\\" + std::u16string(300, u'x'), 75}};
  for (const auto& item : cases) {
    EXPECT_EQ(ErrorOf([&] { files_.ReadAll(item.path); }), 75);
    EXPECT_EQ(ErrorOf([&] { files_.IsReadOnly(item.path); }), item.look);
    EXPECT_EQ(ErrorOf([&] { files_.Write(item.path, "x"); }), 75);
  }
}

TEST_F(FilesTest, TimesHaveFullPrecision) {
  Put("a", "x");
  const struct timespec times[] = {{1, 0}, {1700000000, 123456789}};
  ASSERT_EQ(utimensat(AT_FDCWD, Native("a").c_str(), times, 0), 0);
  EXPECT_EQ(files_.ModificationTime(u"C:\\a"), 1700000000123456789);
}

TEST_F(FilesTest, MovesAcrossFileSystems) {
  std::string other = "/dev/shm/lumenote-XXXXXX";
  if (!mkdtemp(other.data())) GTEST_SKIP() << "no second file system";
  fs::create_directory_symlink(other, Native("far"));
  if (StatOf("far").st_dev == StatOf("").st_dev) GTEST_SKIP() << "no second file system";
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
