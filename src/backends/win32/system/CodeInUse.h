// Whether the component's code may still be called, for a DLL that hosts unload.
#pragma once
#include <atomic>

namespace lumenote {

/// A part of whatever the system, a host or another program may call at any time: windows, and
/// objects that others hold. The code must stay loaded while one lives, on whatever thread.
class CodeInUse {
 public:
  static int Count() { return count_; }
  /// Locks that a host asks for by itself.
  static void Add() { ++count_; }
  static void Remove() { --count_; }

 protected:
  CodeInUse() { Add(); }
  CodeInUse(const CodeInUse&) : CodeInUse() {}
  CodeInUse& operator=(const CodeInUse&) = default;
  ~CodeInUse() { Remove(); }

 private:
  static inline std::atomic<int> count_ = 0;
};

}  // namespace lumenote
