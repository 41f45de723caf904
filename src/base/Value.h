// A JSON value: how members of windows are read and written by name.
#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace lumenote {

/// Null, boolean, number, string (UTF-16), array, or object with its keys in insertion order.
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
  Value(const void*) = delete;  // a pointer, a UTF-8 literal above all, is not a boolean
  Value(Array a) : data_(std::move(a)) {}
  Value(Object o) : data_(std::move(o)) {}

  bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }
  const bool* AsBool() const { return std::get_if<bool>(&data_); }
  const double* AsNumber() const { return std::get_if<double>(&data_); }
  const std::u16string* AsString() const { return std::get_if<std::u16string>(&data_); }
  const Array* AsArray() const { return std::get_if<Array>(&data_); }
  const Object* AsObject() const { return std::get_if<Object>(&data_); }
  /// The value under `key` of an object; null when this is no object or has no such key.
  const Value* Find(std::string_view key) const;

  /// Structural equality: the order of an object's keys has no meaning, numbers go by value.
  bool operator==(const Value& other) const;

 private:
  std::variant<std::monostate, bool, double, std::u16string, Array, Object> data_;
};

class JsonError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads one JSON value from the start of `text` (UTF-8), blanks before it allowed, and moves
/// `text` behind it. Raises `JsonError`, also for a key given twice; nesting is limited to 100
/// levels.
Value ReadJson(std::string_view& text);
/// The compact form: no blanks, UTF-8 not escaped, CR LF as \r\n, whole numbers without a point,
/// a lone surrogate as \uXXXX, an infinite number as null.
std::string WriteJson(const Value& value);

}  // namespace lumenote
