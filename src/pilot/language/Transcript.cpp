// Prints, compares and counts.
#include "pilot/language/Transcript.h"

#include <algorithm>
#include <ostream>

#include "base/Strings.h"
#include "pilot/language/Pattern.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

bool Has(const Value& actual, const Value& wanted);

bool HasItems(const Value::Array& actual, const Value::Array& wanted) {
  return std::equal(actual.begin(), actual.end(), wanted.begin(), wanted.end(), Has);
}

bool HasMembers(const Value& actual, const Value::Object& wanted) {
  return std::all_of(wanted.begin(), wanted.end(), [&](const auto& member) {
    const Value* found = actual.Find(member.first);
    return found && Has(*found, member.second);
  });
}

/// Equality, except that objects in `actual` may have further keys.
bool Has(const Value& actual, const Value& wanted) {
  if (wanted.AsObject()) return actual.AsObject() && HasMembers(actual, *wanted.AsObject());
  if (wanted.AsArray()) return actual.AsArray() && HasItems(*actual.AsArray(), *wanted.AsArray());
  return actual == wanted;
}

}  // namespace

Value ErrorValue(Value number, std::u16string_view description) {
  return Value::Object{{"error", std::move(number)}, {"description", description}};
}

void Transcript::At(int number, std::string_view line) {
  location_ = "line " + std::to_string(number) + ": " + std::string(line);
}

void Transcript::Print(const Value& value) {
  last_ = WriteJson(value);
  out_ << last_ << std::endl;
}

void Transcript::NotUnderstood(std::string_view why) {
  notUnderstood_ = true;
  Print(ErrorValue(u"pilot", FromUtf8(why)));
}

Value Transcript::Last() const {
  std::string_view line = last_;
  return line.empty() ? Value() : ReadJson(line);
}

void Transcript::Expect(const Value& wanted) {
  Count(!last_.empty() && Last() == wanted, WriteJson(wanted));
}

void Transcript::ExpectHas(const Value& wanted) {
  Count(!last_.empty() && Has(Last(), wanted), WriteJson(wanted));
}

void Transcript::ExpectLike(std::string_view regex) { Count(Occurs(regex, last_), regex); }

void Transcript::ExpectKept(const std::string& name) {
  const auto kept = kept_.find(name);
  if (kept == kept_.end()) throw ScriptError("nothing is kept as " + name);
  Count(kept->second == last_, kept->second);
}

void Transcript::Count(bool passed, std::string_view wanted) {
  expecting_ = true;
  ++(passed ? passed_ : failed_);
  if (passed) return;
  err_ << location_ << "\n  expected: " << wanted << "\n  actual:   " << last_ << std::endl;
}

void Transcript::Fault(std::string_view what) {
  faulty_ = true;
  err_ << location_ << "\n  " << what << std::endl;
}

int Transcript::Close() {
  if (expecting_) out_ << passed_ << " passed, " << failed_ << " failed" << std::endl;
  if (notUnderstood_) return 2;
  return failed_ > 0 || faulty_ ? 1 : 0;
}

}  // namespace lumenote
