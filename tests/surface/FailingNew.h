// Allocations that fail on request. To be included by one file of a program.
#pragma once
#include <cstdlib>
#include <new>

namespace lumenote {

/// Lets the allocation number `number` (from 1) fail, once, while this lives.
class FailingNew {
 public:
  explicit FailingNew(long number) { left = number; }
  ~FailingNew() { left = 0; }
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;

  /// Whether there were so many.
  bool HasFailed() const { return left == 0; }

  static inline long left = 0;  // 0: none fails any more
};

}  // namespace lumenote

// Not inlined, lest the compiler pairs one half of a replacement with the other half's inside.
[[gnu::noinline]] void* operator new(std::size_t size) {
  using lumenote::FailingNew;
  if (FailingNew::left > 0 && --FailingNew::left == 0) throw std::bad_alloc();
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return std::malloc(size > 0 ? size : 1);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
