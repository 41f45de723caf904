// Copies of notes in the state folder of a living program, and what it keeps for good.
#include <set>

#include "Sandbox.h"
#include "backends/native/state/NativeStateFolder.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

class OwnStateTest : public SandboxTest {
 protected:
  NativeStateFolder Start() const { return NativeStateFolder(Native("state"), drives_); }

  std::set<std::string> Left() const {
    std::set<std::string> left;
    Start().ClaimOrphans([&](const OrphanedCopy& copy) {
      left.insert(ToUtf8(copy.origin) + "=" + copy.bytes);
      return true;
    });
    return left;
  }

  static void Write(StateCopy& copy, const std::string& origin, const std::string& bytes) {
    copy.BeginFor(origin);
    copy.Append(bytes);
    copy.Commit();
  }
};

TEST_F(OwnStateTest, WhatWasLeftOnPurposeIsHandedOverOnce) {
  {
    NativeStateFolder state = Start();
    const auto copy = state.MakeStateCopy();
    Write(*copy, Native("b.txt"), "text");
    copy->Leave();
  }
  EXPECT_EQ(Left(), std::set<std::string>{"C:\\b.txt=text"});
  EXPECT_EQ(Left(), std::set<std::string>{});
  EXPECT_EQ(CountOfEntries("state"), 0U);
}

TEST_F(OwnStateTest, ALivingOwnerKeepsItsCopies) {
  NativeStateFolder state = Start();
  const auto copy = state.MakeStateCopy();
  Write(*copy, "a.txt", "one");
  EXPECT_EQ(Left(), std::set<std::string>{});
  copy->Begin(u"a.txt");
  copy->Append("two");
  const auto name = [&] { return copy->Path().substr(Native("").size()); };
  EXPECT_EQ(Get(name()), "one");
  const std::string own = name().substr(0, name().rfind('/'));
  copy->Remove();
  EXPECT_EQ(CountOfEntries(own), 1U);  // the mark
  EXPECT_THROW(copy->Append("x"), RuntimeError);
  EXPECT_THROW(copy->Commit(), RuntimeError);
  RemoveTree(Native("state"));
  Write(*copy, "a.txt", "again");
  EXPECT_EQ(Get(name()), "again");
}

TEST_F(OwnStateTest, ForeignFoldersStay) {
  for (const char* name : {"state/owner-ABCDEF", "state/rescue"}) {
    MakeFolders(Native(name));
    Put(std::string(name) + "/1.note", "theirs");
  }
  EXPECT_EQ(Left(), std::set<std::string>{});
  EXPECT_EQ(Get("state/owner-ABCDEF/1.note"), "theirs");
}

TEST_F(OwnStateTest, KeptForGood) {
  NativeStateFolder state = Start();
  EXPECT_EQ(state.KeepForGood(u"Secours_a.txt", "one"), u"C:\\state\\rescue\\Secours_a.txt");
  EXPECT_EQ(ErrorOf([&] { state.KeepForGood(u"Secours_a.txt", "two"); }), 70);
  EXPECT_EQ(Get("state/rescue/Secours_a.txt"), "one");
  NativeStateFolder outside(Native("state"), DrivePaths(Native("c")));
  EXPECT_EQ(outside.KeepForGood(u"b", ""), FromUtf8(Native("state/rescue/b")));
}

}  // namespace
}  // namespace lumenote
