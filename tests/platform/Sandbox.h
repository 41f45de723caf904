// A sandbox on the disk, for the tests of what every platform promises.
#pragma once
#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "backends/native/files/Disk.h"
#include "backends/native/files/FileActs.h"
#include "backends/native/folders/DrivePaths.h"
#include "backends/native/folders/TemporaryFolder.h"
#include "base/ErrorOf.h"

namespace lumenote {

/// Drive C: is the folder `Native("")`.
class SandboxTest : public testing::Test {
 protected:
  std::string Native(const std::string& name) const { return folder_.Path() + "/" + name; }

  void Put(const std::string& name, const std::string& bytes) const {
    SetReadOnly(Native(name), false);
    const OpenFile file = Recreate(Native(name));
    EXPECT_EQ(WriteAll(file, bytes), 0) << name;
  }

  /// "(none)" for what cannot be opened.
  std::string Get(const std::string& name) const {
    std::string bytes = "(none)";
    IgnoringErrors([&] { bytes = ReadWholeFile(Native(name)); });
    return bytes;
  }

  /// Without the mark of the temporary folder.
  std::size_t CountOfEntries(const std::string& name = "") const {
    const std::vector<std::string> names = NamesIn(Native(name));
    return names.size() - static_cast<std::size_t>(
                              std::count(names.begin(), names.end(), TemporaryFolder::kMarkName));
  }

  TemporaryFolder folder_;
  DrivePaths drives_{folder_.Path()};
};

}  // namespace lumenote
