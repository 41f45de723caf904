// The special folders of the user and of the component.
#pragma once
#include <string>

namespace lumenote {

/// Drive-letter paths without a trailing backslash, but for `Temp`; empty when there is none.
class Folders {
 public:
  virtual ~Folders() = default;
  virtual std::u16string Documents() const = 0;
  /// As the platform reports it, ending in a backslash; private to the user and the process.
  virtual std::u16string Temp() const = 0;
};

}  // namespace lumenote
