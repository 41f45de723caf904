// The special folders of the user, and the temporary ones of the component.
#pragma once
#include <memory>
#include <string>

namespace lumenote {

/// A temporary folder that its owner shares with nobody; it goes with this object, or when the
/// programs that work in it have ended.
class TempFolder {
 public:
  virtual ~TempFolder() = default;
  /// A drive-letter path as the platform reports it, ending in a backslash; empty while there can
  /// be none.
  virtual std::u16string Path() const = 0;
  /// Leaves the folder behind for a while, since the next start will look for something in it.
  virtual void Keep() = 0;
};

class Folders {
 public:
  virtual ~Folders() = default;
  /// A drive-letter path without a trailing backslash; empty when there is none.
  virtual std::u16string Documents() const = 0;
  /// For one control; this object outlives it.
  virtual std::unique_ptr<TempFolder> MakeTemp() = 0;
};

}  // namespace lumenote
