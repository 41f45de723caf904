// A sub-folder that has a living owner, or had one.
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Holds a folder by a lock on the mark file in it: the system lets go of the lock when the owner
/// dies, whatever other process has its number then. At the end the folder is removed if nothing
/// but the mark is left in it. All paths are native.
class OwnerFolder {
 public:
  /// A new one in `parent`, which only this user may enter. Raises PathAccess.
  explicit OwnerFolder(const std::string& parent);
  OwnerFolder(const OwnerFolder&) = delete;
  OwnerFolder& operator=(const OwnerFolder&) = delete;
  ~OwnerFolder();

  /// Those in `parent` whose owners are dead; who gets one is its owner now.
  static std::vector<std::unique_ptr<OwnerFolder>> TakeDead(const std::string& parent);

  const std::string& Path() const { return path_; }
  /// Whether nobody has removed the folder meanwhile.
  bool Stands() const;

 private:
  OwnerFolder(std::string path, int mark) : path_(std::move(path)), mark_(mark) {}
  bool TakeLock() const;
  void RemoveIfEmpty() const;

  std::string path_;
  Descriptor mark_;
};

}  // namespace lumenote
