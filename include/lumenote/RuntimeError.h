// Run-time errors: the classic numbers of the platform with a French description.
#pragma once
#include <stdexcept>
#include <string>
#include <string_view>

namespace lumenote {

/// The numbers that members raise.
enum class ErrorNumber : int {
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  TypeMismatch = 13,
  Internal = 51,
  FileNotFound = 53,
  DiskFull = 61,
  PermissionDenied = 70,
  PathAccess = 75,
  PathNotFound = 76,
  NoSuchElement = 340,
  InvalidPropertyValue = 380,
  Printer = 482,
};

/// The component's only exception: a number and its French description (`what()` is the same in
/// UTF-8). Procedures raise it; an event's edge shows it in a critical box; `CoBxRtf` passes it to
/// the host.
class RuntimeError : public std::runtime_error {
 public:
  /// Uses the number's standard description.
  explicit RuntimeError(ErrorNumber number);
  /// `description` is French, for the user.
  RuntimeError(ErrorNumber number, std::u16string description);

  /// The number as hosts of classic languages know it.
  int Number() const { return static_cast<int>(number_); }
  /// In French, for the user.
  const std::u16string& Description() const { return description_; }
  /// The control's member that raised the error ("pCouleurFen"); empty until the error reaches the
  /// control's edge.
  const std::u16string& Member() const { return member_; }
  /// The first name set wins.
  void Member(std::u16string_view name) {
    if (member_.empty()) member_ = name;
  }

 private:
  ErrorNumber number_;
  std::u16string description_;
  std::u16string member_;
};

}  // namespace lumenote
