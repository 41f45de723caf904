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
#include "backends/native/files/BesideFile.h"
#include "backends/native/files/Disk.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/state/NativeStateFolder.h"
#include "base/Rows.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

class FilesTest : public SandboxTest {
 protected:
  /// What dead saves have left, as the next start of the component finds it.
  std::map<std::u16string, std::string> Left() {
    std::map<std::u16string, std::string> left;
    NativeStateFolder(Native("state"), drives_).ClaimOrphans([&](const OrphanedCopy& copy) {
      left.emplace(copy.origin, copy.bytes);
      return false;
    });
    return left;
  }

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

TEST_F(FilesTest, WritesAndReadsBytes) {
  const mode_t mask = umask(027);
  for (const std::string& bytes : {std::string("a\0\r\n\xFF", 5), std::string()}) {
    files_.Write(u"C:\\Été.rtf", bytes);
    EXPECT_EQ(Get("Été.rtf"), bytes);
    EXPECT_EQ(files_.ReadAll(u"C:\\Été.rtf"), bytes);
  }
  umask(mask);
  EXPECT_EQ(ModeOf("Été.rtf"), 0640U);
  EXPECT_TRUE(files_.Exists(u"C:\\Été.rtf"));
  EXPECT_FALSE(files_.Exists(u"C:\\été.rtf"));
  EXPECT_EQ(CountOfEntries(), 1U);
}

TEST_F(FilesTest, WritingKeepsModeAndOwner) {
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

TEST_F(FilesTest, WhatARenameWouldLoseIsWrittenInPlace) {
  Put("a.txt", "the old content", 0640);
  fs::create_hard_link(Native("a.txt"), Native("b.txt"));
  const ino_t before = StatOf("a.txt").st_ino;
  for (const std::string content : {"new", "", "a content that is longer than the old one"}) {
    files_.Write(u"C:\\b.txt", content);
    EXPECT_EQ(Get("a.txt"), content);
    EXPECT_TRUE(StatOf("a.txt").st_ino == before && StatOf("b.txt").st_ino == before);
  }
  EXPECT_TRUE(Left().empty());
  EXPECT_EQ(ErrorOf([&] { NativeFiles(drives_).Write(u"C:\\a.txt", "x"); }), 75);
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

TEST_F(FilesTest, AddsLinesBehindTheLastOne) {
  fs::create_symlink("list.txt", Native("link.txt"));
  for (const auto& row : Rows<3>(R"(
(none) | "" | "" ¦ (none) | b¶ | b¶ ¦ "" | b¶ | b¶ ¦ a¶ | b¶ | a¶b¶ ¦ a␊ | b¶ | a␊b¶ ¦ a | b¶ | a¶b¶
a␍ | b¶ | a¶b¶ ¦ a | "" | a
)")) {
    const auto field = [&](std::size_t index) {
      return Replaced(Replaced(Replaced(row[index], "¶", "\r\n"), "␊", "\n"), "␍", "\r");
    };
    fs::remove(Native("list.txt"));
    if (row[0] != "(none)") Put("list.txt", field(0), 0640);
    files_.AppendLines(u"C:\\link.txt", field(1));
    EXPECT_EQ(Get("list.txt"), field(2));
    EXPECT_EQ(ModeOf("list.txt") == 0640, row[0] != "(none)");
  }
  Put("list.txt", "a", 0444);
  EXPECT_EQ(ErrorOf([&] { files_.AppendLines(u"C:\\list.txt", "b"); }), 75);
  EXPECT_EQ(Get("list.txt"), "a");
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
  { const OpenFile file = CreateBeside(target, Permissions::UserOnly, name); }
  std::ofstream(name) << "leftover";
  return name;
}

TEST_F(FilesTest, ASaveRemovesWhatDeadSavesOfItsNoteLeft) {
  std::string living;
  const OpenFile lock = CreateBeside(Native("a.txt"), Permissions::UserOnly, living);
  const std::string dead = LeftBeside(Native("a.txt"));
  const std::string other = LeftBeside(Native("b.txt"));
  fs::create_symlink("a.txt", dead.substr(0, dead.size() - 1) + "2");
  files_.Write(u"C:\\a.txt", "new");
  EXPECT_EQ(Get("a.txt"), "new");
  EXPECT_TRUE(fs::exists(living) && fs::exists(other) && !fs::exists(dead));
  EXPECT_EQ(CountOfEntries(), 4U);
}

TEST_F(FilesTest, SavesOfOneNoteAtATimeLeaveOneOfThemWhole) {
  for (const bool inPlace : {false, true}) {
    if (inPlace) fs::create_hard_link(Native("a.txt"), Native("b.txt"));
    std::vector<std::thread> threads;
    for (char c = 'a'; c < 'e'; ++c)
      threads.emplace_back([this, c] {
        for (std::size_t i = 1; i < 6; ++i)
          IgnoringErrors([&] { files_.Write(u"C:\\a.txt", std::string(i * 5000, c)); });
      });
    for (std::thread& thread : threads) thread.join();
    const std::string last = Get("a.txt");
    EXPECT_EQ(last, std::string(last.size(), last[0]));
    EXPECT_EQ(last.size() % 5000, 0U);
    EXPECT_EQ(CountOfEntries(), inPlace ? 3U : 1U);  // the other name, the state folder
  }
  EXPECT_TRUE(Left().empty());
}

TEST_F(FilesTest, FailuresHaveTheirNumbers) {
  fs::create_directory(Native("folder"));
  Put("file", "x");
  ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0666), 0);
  for (const auto& [name, reading, looking, writing] : Rows<4>(R"(
C:\missing | 53 | 53 | 0 ¦ C:\none\missing | 76 | 76 | 76 ¦ C:\file\missing | 76 | 76 | 76
C:\file\ | 76 | 76 | 76 ¦ C:\folder | 75 | 53 | 75 ¦ C:\pipe | 75 | 53 | 75 ¦ C:\none\ | 76 | 76 | 76
D:\file | 76 | 76 | 76 ¦ "" | 76 | 76 | 76 ¦ C:\@ | 75 | 75 | 75
)")) {
    SCOPED_TRACE(name);
    const std::u16string path = FromUtf8(Replaced(name, "@", std::string(300, 'x')));
    const int read = std::stoi(reading), look = std::stoi(looking), write = std::stoi(writing);
    EXPECT_FALSE(files_.Exists(path));
    EXPECT_EQ(ErrorOf([&] { files_.ReadAll(path); }), read);
    EXPECT_EQ(ErrorOf([&] { files_.ModificationTime(path); }), look);
    EXPECT_EQ(ErrorOf([&] { files_.IsReadOnly(path); }), look);
    EXPECT_EQ(ErrorOf([&] { files_.Delete(path, true); }), look);
    EXPECT_EQ(ErrorOf([&] { files_.Write(path, "x"); }), write);
    if (!path.ends_with(u'\\')) {
      EXPECT_EQ(ErrorOf([&] { files_.AppendLines(path, "x"); }), write);
    }
  }
  EXPECT_TRUE(fs::is_directory(Native("folder")));
}

TEST_F(FilesTest, TimesHaveFullPrecision) {
  Put("a", "x");
  const struct timespec times[] = {{1, 0}, {1700000000, 123456789}};
  ASSERT_EQ(utimensat(AT_FDCWD, Native("a").c_str(), times, 0), 0);
  EXPECT_EQ(files_.ModificationTime(u"C:\\a"), 1700000000123456789);
}

TEST_F(FilesTest, CopiesAndMovesContentAndMode) {
  Put("from", "content", 0500);
  Put("to", "a longer old content", 0666);
  Put("locked", "old", 0444);
  files_.Copy(u"C:\\from", u"C:\\to");
  EXPECT_EQ(Get("to"), "content");
  EXPECT_EQ(ModeOf("to"), 0500U);
  for (const auto place : {&NativeFiles::Copy, &NativeFiles::Move}) {
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\from", u"C:\\locked"); }), 70);
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\missing", u"C:\\new"); }), 53);
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\from", u"C:\\none\\new"); }), 76);
  }
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\from", u"C:\\to"); }), 70);
  files_.Move(u"C:\\from", u"C:\\new");
  EXPECT_EQ(Get("new") + Get("from") + Get("locked"), "content(none)old");
  EXPECT_EQ(CountOfEntries(), 3U);
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
