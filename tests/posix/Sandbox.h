// Modes of files, and variables of the environment.
#pragma once
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

#include "platform/Sandbox.h"

namespace lumenote {

class PosixTest : public SandboxTest {
 protected:
  void Put(const std::string& name, const std::string& bytes, mode_t mode = 0644) const {
    chmod(Native(name).c_str(), 0600);
    SandboxTest::Put(name, bytes);
    chmod(Native(name).c_str(), mode);
  }

  mode_t ModeOf(const std::string& name) const {
    struct stat info;
    return stat(Native(name).c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
  }
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
