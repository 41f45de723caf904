// Copies that outlive a program, told by locks from those of living ones.
#include <set>

#include "Sandbox.h"
#include "backends/native/state/NativeStateFolder.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

class StateFolderTest : public PosixTest {
 protected:
  NativeStateFolder Start() const { return NativeStateFolder(Native("state"), drives_); }

  /// "origin=content" of each copy handed over, in any order sorted by the set.
  std::set<std::string> Left(bool rescued = true) const {
    std::set<std::string> left;
    Start().ClaimOrphans([&](const OrphanedCopy& copy) {
      left.insert(ToUtf8(copy.origin) + "=" + copy.bytes);
      return rescued;
    });
    return left;
  }

  static void Write(StateCopy& copy, const std::string& origin, const std::string& bytes) {
    copy.BeginFor(origin);
    copy.Append(bytes.substr(0, 2));
    copy.Append(bytes.substr(2));
    copy.Commit();
  }
};

TEST_F(StateFolderTest, WhatIsLeftIsHandedOverUntilItIsRescued) {
  EXPECT_EQ(Left(), std::set<std::string>{});
  EXPECT_FALSE(std::filesystem::exists(Native("state")));
  {
    NativeStateFolder state = Start();
    const auto copy = state.MakeStateCopy(), unfinished = state.MakeStateCopy();
    Write(*copy, "C:\\a.rtf", "{\\rtf1}");
    unfinished->BeginFor("never.txt");
    copy->Leave();
    unfinished->Leave();
  }
  for (const bool rescued : {false, true})
    EXPECT_EQ(Left(rescued), std::set<std::string>{"C:\\a.rtf={\\rtf1}"});
  EXPECT_EQ(Left(), std::set<std::string>{});
  EXPECT_EQ(CountOfEntries("state"), 0U);
}

TEST_F(StateFolderTest, WithoutAFolderNothingIsKept) {
  Put("file", "");
  for (const std::string& path : {std::string(), Native("file/state")}) {
    NativeStateFolder state(path, drives_);
    EXPECT_EQ(ErrorOf([&] { state.MakeCopy()->Begin(u"a"); }), 75) << path;
    EXPECT_EQ(ErrorOf([&] { state.KeepForGood(u"a", ""); }), 75) << path;
    state.ClaimOrphans([](const OrphanedCopy&) { return ADD_FAILURE(), true; });
  }
  const ScopedVariable chosen("XDG_STATE_HOME", "/chosen/");
  EXPECT_EQ(NativeStateFolder::OfUser(), "/chosen/lumenote");
}

}  // namespace
}  // namespace lumenote
