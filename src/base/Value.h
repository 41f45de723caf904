// A JSON value; members of windows are read and written by name in this form.
#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace lumenote {

/// Null, boolean, number, string (UTF-16), array, or object that keeps the insertion order of its
/// keys.
class Value {
 public:
  using Array = std::vector<Value>;
  using Object = std::vector<std::pair<std::string, Value>>;

  Value() = default;
  Value(std::nullptr_t) {}
  Value(bool b) : data_(b) {}
  Value(int n) : data_(static_cast<double>(n)) {}
  Value(double n) : data_(n) {}
  Value(std::u16string s) : data_(std::move(s)) {}
  Value(std::u16string_view s) : data_(std::u16string(s)) {}
  Value(const char16_t* s) : data_(std::u16string(s)) {}
  Value(const void*) = delete;  // no pointer, a UTF-8 literal above all, converts to a boolean
  Value(Array a) : data_(std::move(a)) {}
  Value(Object o) : data_(std::move(o)) {}

  bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }
  const bool* AsBool() const { return std::get_if<bool>(&data_); }
  const double* AsNumber() const { return std::get_if<double>(&data_); }
  const std::u16string* AsString() const { return std::get_if<std::u16string>(&data_); }
  const Array* AsArray() const { return std::get_if<Array>(&data_); }
  const Object* AsObject() const { return std::get_if<Object>(&data_); }
  /// The value of `key`; null if this is not an object or lacks the key.
  const Value* Find(std::string_view key) const;

  /// Structural equality: the order of keys is ignored, numbers compare by value.
  bool operator==(const Value& other) const;

 private:
  std::variant<std::monostate, bool, double, std::u16string, Array, Object> data_;
};

class JsonError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads one JSON value (UTF-8), after optional white space, and advances `text` past it. Raises
/// `JsonError`, also for a duplicate key and for nesting beyond 100 levels.
Value ReadJson(std::string_view& text);
/// Compact form: no white space, non-ASCII as UTF-8, CR LF as \r\n, integers without a point, an
/// unpaired surrogate as \uXXXX, infinity as null.
std::string WriteJson(const Value& value);

}  // namespace lumenote
