// The component's private folder: storage that survives a crash.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumenote {

/// A recovery copy of one note. It is deleted with this object unless it is kept on purpose or the
/// program dies; the next start finds it then. Failures are run-time errors and leave the previous
/// copy intact.
class NoteCopy {
 public:
  virtual ~NoteCopy() = default;
  /// Starts a new copy, dropping one that was not committed. `origin` is the path of the note's
  /// file, or just a name for a string note.
  virtual void Begin(std::u16string_view origin) = 0;
  /// Adds content; call between `Begin` and `Commit`.
  virtual void Append(std::string_view bytes) = 0;
  /// Replaces the old copy by the new one atomically.
  virtual void Commit() = 0;
  /// Deletes the copy and an uncommitted one.
  virtual void Remove() = 0;
  /// Lets the copy outlive this object.
  virtual void Leave() = 0;
};

/// A copy that a dead program left behind.
struct OrphanedCopy {
  std::u16string origin;
  std::string bytes;
};

/// Private to the user; created when first needed.
class StateFolder {
 public:
  virtual ~StateFolder() = default;
  /// Must not outlive this object.
  virtual std::unique_ptr<NoteCopy> MakeCopy() = 0;
  /// Passes to `rescue` each copy that dead programs left behind. A copy for which it returns true
  /// is deleted; the others stay for the next start. Copies of living programs are never touched,
  /// and no other program gets the same copy meanwhile. Never fails.
  virtual void ClaimOrphans(const std::function<bool(const OrphanedCopy&)>& rescue) = 0;
  /// Stores a file permanently, flushed to the disk on return, and returns its path for display.
  /// Raises PermissionDenied if the name is taken.
  virtual std::u16string KeepForGood(std::u16string_view name, std::string_view bytes) = 0;
};

}  // namespace lumenote
