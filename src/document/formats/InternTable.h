// A table that maps each distinct value to a small permanent number.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace lumenote {

/// Hashes `size` bytes.
inline std::uint64_t HashBytes(const void* data, std::size_t size) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
  const char* bytes = static_cast<const char*>(data);
  std::uint64_t hash = size * kFactor;
  for (std::size_t at = 0; at < size; at += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes + at, size - at < sizeof word ? size - at : sizeof word);
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 29;
  }
  hash = (hash ^ hash >> 32) * kFactor;  // carries the last bytes to the low bits
  return hash ^ hash >> 32;
}

inline std::uint64_t HashOf(const std::string& text) { return HashBytes(text.data(), text.size()); }

/// Hash of plain data without padding; other types provide their own overload.
template <class T>
requires std::has_unique_object_representations_v<T> std::uint64_t HashOf(const T& value) {
  return HashBytes(&value, sizeof value);
}

/// An open-addressing hash table; values never move, and at most three quarters of the slots are
/// used. A full table (`kMax` values) maps new values to 0, the default, which bounds the memory of
/// hostile input.
template <class T>
class InternTable {
 public:
  static constexpr std::uint32_t kMax = (1u << 20) - 1;

  /// The number of `value`; adds it if it is new.
  std::uint32_t Intern(const T& value) { return Add(value); }
  std::uint32_t Intern(T&& value) { return Add(std::move(value)); }
  const T& operator[](std::uint32_t number) const { return values_[number]; }
  std::uint32_t Size() const { return static_cast<std::uint32_t>(values_.size()); }

 private:
  template <class Value>
  std::uint32_t Add(Value&& value) {
    if (3 * slots_.size() <= 4 * values_.size()) Grow();
    std::uint32_t& slot = SlotOf(value);
    if (slot != 0) return slot - 1;
    if (values_.size() == kMax) return 0;
    values_.push_back(std::forward<Value>(value));
    slot = Size();
    return slot - 1;
  }
  /// The slot that holds the value's number plus one, or the free slot (0) for it.
  std::uint32_t& SlotOf(const T& value) {
    const std::size_t last = slots_.size() - 1;
    std::size_t i = HashOf(value) & last;
    while (slots_[i] != 0 && !(values_[slots_[i] - 1] == value)) i = (i + 1) & last;
    return slots_[i];
  }
  void Grow() {
    slots_ = std::vector<std::uint32_t>(slots_.empty() ? 16 : 2 * slots_.size());
    for (std::uint32_t number = 0; number < Size(); ++number) SlotOf(values_[number]) = number + 1;
  }

  std::deque<T> values_;
  std::vector<std::uint32_t> slots_;  // their count is a power of two
};

}  // namespace lumenote
