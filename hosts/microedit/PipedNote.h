// A note that comes on a stream and goes on one.
#pragma once
#include <iosfwd>
#include <string>

#include "backends/native/folders/TemporaryFolder.h"

namespace lumenote {

/// Lies in a file of its own, which is edited as any other; it goes with this object unless the
/// note could not be given.
class PipedNote {
 public:
  /// Also the program's exit status.
  enum class Outcome { Changed = 0, Failed = 1, Unchanged = 3, Deleted = 4 };

  /// Raises PathAccess (75) if the note cannot be written to its file.
  explicit PipedNote(std::string note);

  /// Of a note in a file the file's own attribute says whether changes are refused.
  /// Raises PathAccess (75).
  void MakeReadOnly() const;

  /// Native.
  const std::string& Path() const { return path_; }

  /// Writes the note, which now lies in `path`; empty if it has been deleted. Says on standard
  /// error where the note is if nobody takes it.
  Outcome Give(const std::string& path, std::ostream& out);

 private:
  TemporaryFolder folder_;
  std::string came_;
  std::string path_;
};

}  // namespace lumenote
