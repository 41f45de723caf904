// The user's special folders and the component's temporary ones.
#pragma once
#include <memory>
#include <string>

namespace lumenote {

/// A temporary folder with a single owner. It is removed with this object, or once the programs
/// working in it have ended.
class TempFolder {
 public:
  virtual ~TempFolder() = default;
  /// A drive-letter path ending in a backslash, as the platform reports it; empty if the folder
  /// cannot be created.
  virtual std::u16string Path() const = 0;
  /// Leaves the folder behind for a while, since the next start will look for something in it.
  virtual void Keep() = 0;
};

class Folders {
 public:
  virtual ~Folders() = default;
  /// A drive-letter path without a trailing backslash; empty if there is none.
  virtual std::u16string Documents() const = 0;
  /// For one control; must not outlive this object.
  virtual std::unique_ptr<TempFolder> MakeTemp() = 0;
};

}  // namespace lumenote
