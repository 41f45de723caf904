// An open file of the system, and reading and writing it whole.
#pragma once
#include <string>
#include <string_view>
#include <utility>

namespace lumenote {

/// Owns a file descriptor, or none (-1).
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

/// Everything from the regular file at the native path; `path` may end in a symbolic link. Raises
/// what `AccessError` says, PathAccess for what is no regular file.
std::string ReadWholeFile(const std::string& path);
/// Whether the native path itself, no link followed, is a name of the open file.
bool LeadsTo(const std::string& path, const Descriptor& file);
/// Brings a file's content, or the entries of a folder, to the disk. Returns 0, or the errno value
/// of what went wrong; so does `WriteAll`.
int SyncToDisk(const std::string& path);
int WriteAll(const Descriptor& file, std::string_view bytes);

}  // namespace lumenote
