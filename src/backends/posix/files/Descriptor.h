// An open file descriptor; reading and writing whole files.
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

/// Reads the regular file at the native path, following symbolic links. Raises as `AccessError`
/// says, and PathAccess for anything but a regular file.
std::string ReadWholeFile(const std::string& path);
/// Whether the native path itself, not followed if a link, names the open file.
bool IsNameOf(const std::string& path, const Descriptor& file);
/// Flushes a file's content, or a folder's entries, to the disk. Like `WriteAll` returns 0 or an
/// errno value.
int SyncToDisk(const std::string& path);
int WriteAll(const Descriptor& file, std::string_view bytes);

}  // namespace lumenote
