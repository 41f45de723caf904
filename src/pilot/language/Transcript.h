// What a script has printed, and what it expected of it.
#pragma once
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

/// Prints one line a value to `out`; what went wrong is told on `err`. Both outlive it.
class Transcript {
 public:
  Transcript(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  /// The script's line that is being carried out, for what is told on `err`.
  void At(int number, std::string_view line);

  void Print(const Value& value);
  /// The line cannot be understood: prints why.
  void NotUnderstood(std::string_view why);

  /// Each compares the last line printed, and counts.
  void Expect(const Value& wanted);
  void ExpectHas(const Value& wanted);
  /// Raises `ScriptError` for what is no regular expression.
  void ExpectLike(std::string_view regex);
  /// Raises `ScriptError` when nothing is kept under the name.
  void ExpectKept(const std::string& name);
  void Keep(const std::string& name) { kept_[name] = last_; }

  /// Something beside the expectations went wrong; the script has failed.
  void Fault(std::string_view what);

  /// Prints the count of the expectations, if there were any, and returns the exit status: 2 when a
  /// line was not understood, 1 when the script has failed, else 0.
  int Close();

 private:
  void Count(bool passed, std::string_view wanted);
  Value Last() const;

  std::ostream& out_;
  std::ostream& err_;
  std::string last_;
  std::map<std::string, std::string> kept_;
  std::string place_;
  int passed_ = 0;
  int failed_ = 0;
  bool expecting_ = false;
  bool faulty_ = false;
  bool notUnderstood_ = false;
};

/// An error as it is printed.
Value ErrorValue(Value number, std::u16string_view description);

}  // namespace lumenote
