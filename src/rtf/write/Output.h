// RTF source on its way out.
#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "document/text/TextView.h"
#include "rtf/write/Writer.h"

namespace lumenote {

/// How the characters of a font are written.
enum class Encoding : std::uint8_t { Windows, Symbols, UnicodeOnly };

/// Gathers the output and hands it on in pieces of about 64 KB, the last ones by `Flush`. A source
/// that is longer, such as a picture, is not copied but waits for `HandOn`, and what comes behind
/// it waits too; so it lasts until then. Knows whether a control word still waits for something
/// that ends it.
class Output {
 public:
  explicit Output(const ByteSink& sink);

  /// A control word, without its backslash; no longer than words are.
  void Word(std::string_view name);
  void Word(std::string_view name, int number);
  /// Control words with their backslashes, and groups between and behind them.
  void Words(std::string_view source);
  /// Braces, line ends and whatever else can follow a control word directly.
  void Raw(std::string_view source);
  void Character(char16_t unit, Encoding encoding);
  /// \'xx
  void Hex(int byte);
  /// A unit for any reader: its number, and "?" where that is not understood.
  void Unicode(char16_t unit);
  /// Writes the beginning of `text` that consists of plain characters, and returns its length.
  std::size_t Plain(TextView text);
  /// Writes the beginning of `text` that holds no tab, break or embedded object, and returns its
  /// length.
  std::size_t Text(TextView text, Encoding encoding);
  void Flush();
  /// Hands on one piece of what waits; false when nothing does.
  bool HandOn();
  bool Waits() const { return !waiting_.empty(); }

 private:
  struct Waiting {
    std::string gathered;
    std::string_view lasting;  // in its place
  };

  static constexpr std::size_t kPiece = std::size_t{1} << 16;
  static constexpr std::size_t kShort = 256;  // there is always room for as many bytes

  template <class Unit>
  std::size_t TextAs(std::basic_string_view<Unit> text, Encoding encoding);
  /// `WriteForms` with the forms that the encoding has.
  template <class Unit>
  std::size_t WriteEncoded(std::basic_string_view<Unit> text, Encoding encoding);
  /// Writes the beginning of `text` that consists of characters that have a form, and returns its
  /// length.
  template <class Forms, class Unit>
  std::size_t WriteForms(std::basic_string_view<Unit> text);
  void Append(std::string_view source);
  void AppendLong(std::string_view source);
  void Grow(std::size_t count);

  const ByteSink& sink_;
  std::deque<Waiting> waiting_;
  std::vector<char> buffer_;
  std::size_t size_ = 0;
  bool openWord_ = false;
};

}  // namespace lumenote
