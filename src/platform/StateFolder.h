// The component's private folder: what has to outlive a program that dies.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumenote {

/// A copy of one note. It goes with this object, unless it is left on purpose or the program dies:
/// then the next start finds it. Failures are run-time errors, and the copy that stood before still
/// stands.
class NoteCopy {
 public:
  virtual ~NoteCopy() = default;
  /// Starts a new copy; one that was started and not committed is dropped. `origin` is the path of
  /// the note's file, or a name alone for a note that is no file of the user's.
  virtual void Begin(std::u16string_view origin) = 0;
  /// Part of the content; between `Begin` and `Commit`.
  virtual void Append(std::string_view bytes) = 0;
  /// The new copy takes the place of the old one, at once or not at all.
  virtual void Commit() = 0;
  /// Takes away the copy and one that was started.
  virtual void Remove() = 0;
  /// The copy outlives this object.
  virtual void Leave() = 0;
};

/// What a dead program has left: the origin that it told, the content.
struct LeftCopy {
  std::u16string origin;
  std::string bytes;
};

/// The folder and its files are the user's alone. It is made when it is first needed.
class StateFolder {
 public:
  virtual ~StateFolder() = default;
  /// A place for copies; this object outlives it.
  virtual std::unique_ptr<NoteCopy> MakeCopy() = 0;
  /// Gives `rescue` each copy that dead programs left; what it returns true for is taken away, the
  /// others stay for the next start. No copy of a living program is touched, and no other program
  /// is given the same one meanwhile. Never fails.
  virtual void HandOverLeft(const std::function<bool(const LeftCopy&)>& rescue) = 0;
  /// Keeps a file for good, on the disk when this returns, and returns its path for the user to
  /// read. Raises PermissionDenied when there is one of that name already.
  virtual std::u16string KeepForGood(std::u16string_view name, std::string_view bytes) = 0;
};

}  // namespace lumenote
