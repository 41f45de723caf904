// The output of a script and its expectations.
#pragma once
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

/// Prints one line per value to `out`, and errors to `err`; both must outlive it.
class Transcript {
 public:
  Transcript(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  /// Sets the current script line, for messages on `err`.
  void At(int number, std::string_view line);

  void Print(const Value& value);
  /// Reports an invalid line.
  void NotUnderstood(std::string_view why);

  /// Each compares the last line printed, and counts.
  void Expect(const Value& wanted);
  void ExpectHas(const Value& wanted);
  /// Raises `ScriptError` for an invalid expression.
  void ExpectLike(std::string_view regex);
  /// Raises `ScriptError` if nothing was kept under the name.
  void ExpectKept(const std::string& name);
  void Keep(const std::string& name) { kept_[name] = last_; }

  /// Fails the script for a reason other than an expectation.
  void Fault(std::string_view what);

  /// Prints the count of expectations, if any, and returns the exit status: 2 if a line was
  /// invalid, 1 if the script failed, else 0.
  int Close();

 private:
  void Count(bool passed, std::string_view wanted);
  Value Last() const;

  std::ostream& out_;
  std::ostream& err_;
  std::string last_;
  std::map<std::string, std::string> kept_;
  std::string location_;
  int passed_ = 0;
  int failed_ = 0;
  bool expecting_ = false;
  bool faulty_ = false;
  bool notUnderstood_ = false;
};

/// An error in its printed form.
Value ErrorValue(Value number, std::u16string_view description);

}  // namespace lumenote
