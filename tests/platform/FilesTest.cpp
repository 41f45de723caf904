// Files, as every platform promises them: whole, refused where read-only, told where they fail.
#include <map>
#include <thread>
#include <vector>

#include "Sandbox.h"
#include "backends/native/files/BesideFile.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/state/NativeStateFolder.h"
#include "base/Rows.h"

namespace lumenote {
namespace {

class PlatformFilesTest : public SandboxTest {
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

  NativeStateFolder state_{Native("state"), drives_};
  NativeFiles files_{drives_, &state_};
};

TEST_F(PlatformFilesTest, BytesComeBackHoweverLongThePathIs) {
  std::u16string path = u"C:\\Été";
  for (int i = 0; i < 8; ++i) {
    for (const std::string& bytes : {std::string("a\0\r\n\xFF", 5), std::string()}) {
      files_.Write(path, bytes);
      EXPECT_EQ(files_.ReadAll(path), bytes);
      EXPECT_EQ(files_.Size(path), bytes.size());
    }
    EXPECT_TRUE(files_.Exists(path) && files_.SameFile(path, path));
    files_.Delete(path, false);
    ASSERT_EQ(MakeFolders(drives_.ToNative(path)), 0);
    path += u"\\" + std::u16string(60, u'é');
  }
  EXPECT_EQ(CountOfEntries(), 1U);
}

TEST_F(PlatformFilesTest, AReadOnlyFileIsRefusedWhoeverRuns) {
  Put("a.txt", "old");
  SetReadOnly(Native("a.txt"), true);
  EXPECT_TRUE(files_.IsReadOnly(u"C:\\a.txt"));
  EXPECT_EQ(ErrorOf([&] { files_.Write(u"C:\\a.txt", "new"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.AppendLines(u"C:\\a.txt", "new"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Delete(u"C:\\a.txt", false); }), 70);
  EXPECT_EQ(Get("a.txt"), "old");
  EXPECT_EQ(CountOfEntries(), 1U);
  files_.Delete(u"C:\\a.txt", true);
  EXPECT_EQ(CountOfEntries(), 0U);
}

TEST_F(PlatformFilesTest, WhatARenameWouldLoseIsWrittenInPlace) {
  Put("a.txt", "the old content");
  ASSERT_EQ(MakeHardLink(Native("b.txt"), Native("a.txt")), 0);
  for (const std::string content : {"new", "", "a content that is longer than the old one"}) {
    files_.Write(u"C:\\b.txt", content);
    EXPECT_EQ(Get("a.txt"), content);
    EXPECT_TRUE(files_.SameFile(u"C:\\a.txt", u"C:\\b.txt"));
  }
  EXPECT_TRUE(Left().empty());
  EXPECT_EQ(ErrorOf([&] { NativeFiles(drives_).Write(u"C:\\a.txt", "x"); }), 75);
}

TEST_F(PlatformFilesTest, AddsLinesBehindTheLastOne) {
  for (const auto& row : Rows<3>(R"(
(none) | "" | "" ¦ (none) | b¶ | b¶ ¦ "" | b¶ | b¶ ¦ a¶ | b¶ | a¶b¶ ¦ a␊ | b¶ | a␊b¶ ¦ a | b¶ | a¶b¶
a␍ | b¶ | a¶b¶ ¦ a | "" | a
)")) {
    const auto field = [&](std::size_t index) {
      return Replaced(Replaced(Replaced(row[index], "¶", "\r\n"), "␊", "\n"), "␍", "\r");
    };
    RemoveFile(Native("list.txt"));
    if (row[0] != "(none)") Put("list.txt", field(0));
    files_.AppendLines(u"C:\\list.txt", field(1));
    EXPECT_EQ(Get("list.txt"), field(2));
  }
}

/// What a save that dies leaves beside its target.
std::string LeftBeside(const std::string& target) {
  std::string name;
  WriteAll(CreateBeside(target, Permissions::UserOnly, name), "leftover");
  return name;
}

TEST_F(PlatformFilesTest, ASaveRemovesWhatDeadSavesOfItsNoteLeft) {
  std::string living;
  const OpenFile lock = CreateBeside(Native("a.txt"), Permissions::UserOnly, living);
  const std::string dead = LeftBeside(Native("a.txt"));
  const std::string other = LeftBeside(Native("b.txt"));
  files_.Write(u"C:\\a.txt", "new");
  EXPECT_EQ(Get("a.txt"), "new");
  EXPECT_TRUE(StatusOf(living) && StatusOf(other) && !StatusOf(dead));
  EXPECT_EQ(CountOfEntries(), 3U);
}

TEST_F(PlatformFilesTest, SavesOfOneNoteAtATimeLeaveOneOfThemWhole) {
  for (const bool inPlace : {false, true}) {
    if (inPlace) MakeHardLink(Native("b.txt"), Native("a.txt"));
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
    files_.Write(u"C:\\a.txt", "takes away what a lost race has left");
    // Where a rename over a file that somebody looks at is refused, it is written in place.
    const std::size_t backups = StatusOf(Native("state")) ? 1 : 0;
    EXPECT_EQ(CountOfEntries(), backups + (inPlace ? 2 : 1));
  }
  EXPECT_TRUE(Left().empty());
}

TEST_F(PlatformFilesTest, FailuresHaveTheirNumbers) {
  MakeFolders(Native("folder"));
  Put("file", "x");
  for (const auto& [name, reading, looking, writing] : Rows<4>(R"(
C:\missing | 53 | 53 | 0 ¦ C:\none\missing | 76 | 76 | 76 ¦ C:\file\missing | 76 | 76 | 76
C:\file\ | 76 | 76 | 76 ¦ C:\folder | 75 | 53 | 75 ¦ C:\none\ | 76 | 76 | 76
D:\file | 76 | 76 | 76 ¦ "" | 76 | 76 | 76
)")) {
    SCOPED_TRACE(name);
    const std::u16string path = FromUtf8(name);
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
  EXPECT_TRUE(IsOwnFolder(Native("folder")));
}

TEST_F(PlatformFilesTest, CopiesAndMovesWholeFilesOntoFreeNames) {
  Put("from", "content");
  Put("to", "a longer old content");
  Put("locked", "old");
  SetReadOnly(Native("locked"), true);
  files_.Copy(u"C:\\from", u"C:\\to");
  EXPECT_EQ(Get("to"), "content");
  for (const auto place : {&NativeFiles::Copy, &NativeFiles::Move}) {
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\from", u"C:\\locked"); }), 70);
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\missing", u"C:\\new"); }), 53);
    EXPECT_EQ(ErrorOf([&] { (files_.*place)(u"C:\\from", u"C:\\none\\new"); }), 76);
  }
  EXPECT_EQ(ErrorOf([&] { files_.Move(u"C:\\from", u"C:\\to"); }), 70);
  const FileTime time = files_.ModificationTime(u"C:\\from");
  EXPECT_EQ(ShiftTime(Native("from"), 10), 0);
  files_.Move(u"C:\\from", u"C:\\new");
  EXPECT_EQ(files_.ModificationTime(u"C:\\new") - time, 10'000'000'000);
  EXPECT_EQ(Get("new") + Get("from") + Get("locked"), "content(none)old");
  EXPECT_EQ(CountOfEntries(), 3U);
}

}  // namespace
}  // namespace lumenote
