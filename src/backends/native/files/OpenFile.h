// An open file of the system, and its locks.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lumenote {

/// Owns an open file: a descriptor, on Windows a handle, or none (-1).
class OpenFile {
 public:
  explicit OpenFile(std::intptr_t number = kNone) : number_(number) {}
  OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { Close(); }

  std::intptr_t Number() const { return number_; }
  bool IsOpen() const { return number_ != kNone; }
  void Close();

 private:
  static constexpr std::intptr_t kNone = -1;

  std::intptr_t number_;
};

/// Writes at the current place, or at the end of a file that was opened to append. Like the next
/// ones, returns 0 or the system's error number.
int WriteAll(const OpenFile& file, std::string_view bytes);
int SeekToStart(const OpenFile& file);
/// Gives the file a length; also releases what was reserved beyond it.
int Resize(const OpenFile& file, std::uint64_t size);
/// Asks for the space that content of this size needs, where the file system can tell.
int Reserve(const OpenFile& file, std::uint64_t size);
/// Flushes the content to the disk.
int Flush(const OpenFile& file);
/// In bytes; nothing, with `LastError`, if the system does not tell.
std::optional<std::uint64_t> SizeOf(const OpenFile& file);
/// The last byte; empty for an empty or unreadable file.
std::optional<char> LastByteOf(const OpenFile& file);

/// Locks are between open files, in one process too. Closing the file releases its lock, and so
/// does the system however the program ends.
enum class Lock { Shared, Exclusive };
/// `Impossible` for a file that cannot be locked at all.
enum class LockResult { Locked, Taken, Impossible };
LockResult TryLock(const OpenFile& file, Lock lock);

/// Whether the native path itself, not followed if a link, names the open file.
bool IsNameOf(const std::string& path, const OpenFile& file);
/// Whether the file is a regular one of this user's that still has a name.
bool IsOwn(const OpenFile& file);

}  // namespace lumenote
