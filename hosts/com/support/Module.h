// The DLL: its file, what keeps it loaded, and its type library.
#pragma once
#include <atomic>
#include <string>

#include "ComPtr.h"
#include "Ole.h"

namespace lumenote {

/// Keeps the DLL loaded for as long as it lives: a part of every object that hosts hold, and of
/// whatever may have code of the DLL on the stack.
class ModuleLock {
 public:
  ModuleLock() { ++count_; }
  ModuleLock(const ModuleLock&) : ModuleLock() {}
  ModuleLock& operator=(const ModuleLock&) = delete;
  ~ModuleLock() { --count_; }

  static bool None() { return count_ == 0; }
  /// Locks that the system counts for a host.
  static void Add() { ++count_; }
  static void Remove() { --count_; }

 private:
  static inline std::atomic<long> count_ = 0;
};

/// The handle of the DLL, whatever program has loaded it.
HINSTANCE ThisModule();
/// The full path of the DLL's file.
std::wstring ModulePath();
/// The description of a type in the DLL's own type library. Null if it cannot be read.
ComPtr<ITypeInfo> DescriptionOf(const GUID& type);

}  // namespace lumenote
