// JSON reader and compact JSON writer.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/Value.h"

namespace lumenote {
namespace {

/// Recursive descent; `text_` is always the unread rest.
class JsonReader {
 public:
  explicit JsonReader(std::string_view& text) : text_(text) {}

  Value ReadValue(int depth = 0) {
    const char first = Peek();
    const bool nests = first == '{' || first == '[';
    if (nests && depth == kMaximumDepth) Fail("nested too deeply");
    switch (first) {
      case '{':
        return ReadObject(depth);
      case '[':
        return ReadArray(depth);
      case '"':
        return ReadString();
      case 't':
        return ReadWord("true", true);
      case 'f':
        return ReadWord("false", false);
      case 'n':
        return ReadWord("null", nullptr);
      default:
        return ReadNumber();
    }
  }

 private:
  static constexpr int kMaximumDepth = 100;

  [[noreturn]] static void Fail(const char* what) { throw JsonError(what); }

  /// The next character that is not white space; NUL at the end of the text.
  char Peek() {
    const std::size_t start = text_.find_first_not_of(" \t\r\n");
    text_.remove_prefix(std::min(start, text_.size()));
    return text_.empty() ? '\0' : text_[0];
  }

  /// Consumes `c` if it comes next, after optional white space.
  bool Take(char c) {
    if (Peek() != c) return false;
    text_.remove_prefix(1);
    return true;
  }

  void Expect(char c, const char* what) {
    if (!Take(c)) Fail(what);
  }

  Value ReadWord(std::string_view word, Value value) {
    if (!text_.starts_with(word)) Fail("unknown word");
    text_.remove_prefix(word.size());
    return value;
  }

  Value ReadArray(int depth) {
    Value::Array items;
    Expect('[', "[ expected");
    if (Take(']')) return items;
    do {
      items.push_back(ReadValue(depth + 1));
    } while (Take(','));
    Expect(']', ", or ] expected");
    return items;
  }

  Value ReadObject(int depth) {
    Value::Object members;
    Expect('{', "{ expected");
    if (Take('}')) return members;
    do {
      if (Peek() != '"') Fail("key expected");
      std::string key = ToUtf8(ReadString());
      for (const auto& member : members) {
        if (member.first == key) Fail("key given twice");
      }
      Expect(':', ": expected");
      members.emplace_back(std::move(key), ReadValue(depth + 1));
    } while (Take(','));
    Expect('}', ", or } expected");
    return members;
  }

  std::u16string ReadString() {
    std::u16string out;
    text_.remove_prefix(1);
    while (true) {
      const std::size_t end = PlainLength();
      if (!IsUtf8(text_.substr(0, end))) Fail("string is not UTF-8");
      out += FromUtf8(text_.substr(0, end));
      if (end == text_.size()) Fail("string without an end");
      const char stop = text_[end];
      text_.remove_prefix(end + 1);
      if (stop == '"') return out;
      if (stop != '\\') Fail("control character in a string");
      out += ReadEscape();
    }
  }

  /// Number of bytes before the next quote, backslash or control character.
  std::size_t PlainLength() const {
    std::size_t length = 0;
    while (length < text_.size() && text_[length] != '"' && text_[length] != '\\' &&
           static_cast<unsigned char>(text_[length]) >= 0x20) {
      ++length;
    }
    return length;
  }

  char16_t ReadEscape() {
    constexpr std::string_view kNames = "\"\\/bfnrt";
    constexpr std::u16string_view kMeanings = u"\"\\/\b\f\n\r\t";
    if (text_.empty()) Fail("string without an end");
    const char name = text_[0];
    text_.remove_prefix(1);
    if (name == 'u') return ReadUnit();
    const std::size_t which = kNames.find(name);
    if (which == std::string_view::npos) Fail("unknown escape");
    return kMeanings[which];
  }

  /// Reads the four hexadecimal digits of \uXXXX; a surrogate pair takes two calls.
  char16_t ReadUnit() {
    const std::optional<char16_t> unit = UnitFromHex(text_);
    if (!unit) Fail("bad \\u escape");
    text_.remove_prefix(4);
    return *unit;
  }

  std::size_t SkipDigits(std::size_t at) const {
    const std::size_t end = text_.find_first_not_of("0123456789", at);
    return std::min(end, text_.size());
  }

  /// Length of the number at the start of the text, by JSON's grammar.
  std::size_t NumberLength() const {
    const auto at = [&](std::size_t i) { return i < text_.size() ? text_[i] : '\0'; };
    const auto digits = [&](std::size_t i) {
      const std::size_t end = SkipDigits(i);
      if (end == i) Fail("value expected");
      return end;
    };
    const std::size_t first = at(0) == '-' ? 1 : 0;
    std::size_t end = digits(first);
    if (at(first) == '0' && end > first + 1) Fail("number starts with 0");
    if (at(end) == '.') end = digits(end + 1);
    if (at(end) == 'e' || at(end) == 'E') {
      ++end;
      end = digits(at(end) == '+' || at(end) == '-' ? end + 1 : end);
    }
    return end;
  }

  Value ReadNumber() {
    const std::string_view numeral = text_.substr(0, NumberLength());
    text_.remove_prefix(numeral.size());
    try {
      return ParseDecimal(numeral);
    } catch (const RuntimeError&) {
      Fail("number too large");
    }
  }

  std::string_view& text_;
};

/// Appends values to `out` in compact form.
class JsonWriter {
 public:
  explicit JsonWriter(std::string& out) : out_(out) {}

  void Write(const Value& value) {
    if (const bool* b = value.AsBool()) {
      out_ += *b ? "true" : "false";
    } else if (const double* number = value.AsNumber()) {
      WriteNumber(*number);
    } else if (const std::u16string* string = value.AsString()) {
      WriteString(*string);
    } else if (const Value::Array* array = value.AsArray()) {
      WriteArray(*array);
    } else if (const Value::Object* object = value.AsObject()) {
      WriteObject(*object);
    } else {
      out_ += "null";
    }
  }

 private:
  void WriteNumber(double number) {
    constexpr double kExactIntegers = 9007199254740992.0;  // 2^53
    char buffer[32];
    char* const limit = buffer + sizeof buffer;
    if (!std::isfinite(number)) {
      out_ += "null";
    } else if (std::abs(number) <= kExactIntegers && number == std::trunc(number)) {
      out_.append(buffer, std::to_chars(buffer, limit, static_cast<std::int64_t>(number)).ptr);
    } else {
      out_.append(buffer, std::to_chars(buffer, limit, number).ptr);
    }
  }

  void WriteArray(const Value::Array& array) {
    out_ += '[';
    const char* separator = "";
    for (const Value& item : array) {
      out_ += separator;
      Write(item);
      separator = ",";
    }
    out_ += ']';
  }

  void WriteObject(const Value::Object& object) {
    out_ += '{';
    const char* separator = "";
    for (const auto& [key, value] : object) {
      out_ += separator;
      WriteString(FromUtf8(key));
      out_ += ':';
      Write(value);
      separator = ",";
    }
    out_ += '}';
  }

  void WriteString(std::u16string_view string) {
    out_ += '"';
    std::size_t plain = 0;
    for (std::size_t i = 0; i < string.size(); ++i) {
      if (IsPairAt(string, i)) {
        ++i;
      } else if (MustEscape(string[i])) {
        out_ += ToUtf8(string.substr(plain, i - plain));
        WriteEscape(string[i]);
        plain = i + 1;
      }
    }
    out_ += ToUtf8(string.substr(plain));
    out_ += '"';
  }

  /// Called for a surrogate only when it is unpaired.
  static bool MustEscape(char16_t c) {
    return c < 0x20 || c == u'"' || c == u'\\' || IsSurrogate(c);
  }

  void WriteEscape(char16_t c) {
    constexpr std::u16string_view kCharacters = u"\"\\\b\f\n\r\t";
    constexpr std::string_view kNames = "\"\\bfnrt";
    out_ += '\\';
    if (const std::size_t which = kCharacters.find(c); which != std::u16string_view::npos) {
      out_ += kNames[which];
      return;
    }
    out_ += 'u' + HexOfUnit(c);
  }

  std::string& out_;
};

}  // namespace

Value ReadJson(std::string_view& text) { return JsonReader(text).ReadValue(); }

std::string WriteJson(const Value& value) {
  std::string out;
  JsonWriter(out).Write(value);
  return out;
}

}  // namespace lumenote
