// What the tests of this folder share: a sandbox on the disk, and variables of the environment.
#pragma once
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/stat.h>

#include "backends/native/folders/DrivePaths.h"
#include "backends/native/folders/TemporaryFolder.h"
#include "base/ErrorOf.h"

namespace lumenote {

/// Drive C: is the folder `Native("")`.
class SandboxTest : public testing::Test {
 protected:
  std::string Native(const std::string& name) const { return folder_.Path() + "/" + name; }

  void Put(const std::string& name, const std::string& bytes, mode_t mode = 0644) const {
    std::ofstream(Native(name), std::ios::binary) << bytes;
    chmod(Native(name).c_str(), mode);
  }

  /// "(none)" for what cannot be opened.
  std::string Get(const std::string& name) const {
    std::ifstream stream(Native(name), std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "(none)";
  }

  mode_t ModeOf(const std::string& name) const {
    struct stat info;
    return stat(Native(name).c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
  }

  /// Without the mark of the temporary folder.
  std::size_t CountOfEntries(const std::string& name = "") const {
    const std::filesystem::directory_iterator entries(Native(name));
    return static_cast<std::size_t>(std::count_if(begin(entries), end(entries), [](auto& entry) {
      return entry.path().filename() != TemporaryFolder::kMarkName;
    }));
  }

  TemporaryFolder folder_;
  DrivePaths drives_{folder_.Path()};
};

/// Sets a variable of the environment, or takes it away, as long as this lives.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const char* value) : name_(name) {
    const char* old = getenv(name);
    if (old) old_ = old;
    had_ = old != nullptr;
    Put(value);
  }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;
  ~ScopedVariable() { Put(had_ ? old_.c_str() : nullptr); }

 private:
  void Put(const char* value) { value ? setenv(name_, value, 1) : unsetenv(name_); }

  const char* name_;
  std::string old_;
  bool had_;
};

}  // namespace lumenote
