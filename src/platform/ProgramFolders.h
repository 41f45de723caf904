// Where programs are installed.
#pragma once
#include <string>

namespace lumenote {

/// Drive-letter paths without a trailing backslash, but for a drive's root; empty when there is
/// none.
class ProgramFolders {
 public:
  virtual ~ProgramFolders() = default;
  virtual std::u16string Programs() const = 0;
  /// The folder that the component itself was loaded from.
  virtual std::u16string Component() const = 0;
};

}  // namespace lumenote
