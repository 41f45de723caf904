// Where programs are installed.
#pragma once
#include <string>

namespace lumenote {

/// Drive-letter paths without a trailing backslash, except for a drive's root; empty if there is
/// none.
class ProgramFolders {
 public:
  virtual ~ProgramFolders() = default;
  virtual std::u16string Programs() const = 0;
  /// The folder that the component was loaded from.
  virtual std::u16string Component() const = 0;
};

}  // namespace lumenote
