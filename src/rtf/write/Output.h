// The output stream of the RTF writer.
#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "document/formats/Formats.h"
#include "document/text/TextView.h"
#include "rtf/write/Writer.h"

namespace lumenote {

/// How the characters of a font are encoded.
enum class Encoding : std::uint8_t {
  Windows,
  Symbols,
  Document,  // bytes of the document's page, which is not that of Windows
  UnicodeOnly
};

/// Buffers the output and emits pieces of about 64 KB, the rest on `Flush`. A longer piece of
/// source, such as a picture, is not copied but queued for `HandOn`, together with everything after
/// it; it must stay valid until then. Tracks whether the last control word needs a delimiter.
class Output {
 public:
  /// `page` is the document's.
  Output(const ByteSink& sink, int page);

  /// Writes a control word, given without its backslash; of ordinary length.
  void Word(std::string_view name);
  void Word(std::string_view name, int number);
  /// Writes \plain. After text it is set apart, since some readers format text only when they meet
  /// the next word, unless it is to be `behindText` as it is.
  void Reset(bool behindText = false);
  /// Whether there has been a \plain.
  bool HasReset() const { return hasReset_; }
  /// Whether text without a word or brace behind it precedes.
  bool AfterText() const { return afterText_; }
  /// Writes a control word that stands for a character.
  void Symbol(std::string_view name);
  /// Writes control words with their backslashes, and groups among them.
  void Words(std::string_view source);
  /// Writes braces, line ends and anything else that delimits a control word.
  void Raw(std::string_view source);
  void Character(char16_t unit, Encoding encoding);
  /// \'xx
  void Hex(int byte);
  /// A unit that any reader can handle: its number, with "?" as fallback.
  void Unicode(char16_t unit);
  /// Writes the longest prefix of plain characters and returns its length.
  std::size_t Plain(TextView text);
  /// Writes the longest prefix without tab, break or embedded object and returns its length.
  std::size_t Text(TextView text, Encoding encoding, Spelling spelling = Spelling::Usual);
  void Flush();
  /// Emits one piece of the queue; false if it is empty.
  bool HandOn();
  bool Waits() const { return !waiting_.empty(); }

 private:
  struct Waiting {
    std::string gathered;
    std::string_view lasting;  // used instead of a copy
  };

  static constexpr std::size_t kPiece = std::size_t{1} << 16;
  static constexpr std::size_t kShort = 256;  // space that is always available

  template <class Unit>
  std::size_t TextAs(std::basic_string_view<Unit> text, Encoding encoding, Spelling spelling);
  void Spelled(char16_t unit, Encoding encoding, Spelling spelling);
  /// `WriteForms` with the forms of the encoding.
  template <class Unit>
  std::size_t WriteEncoded(std::basic_string_view<Unit> text, Encoding encoding);
  /// Writes the longest prefix whose characters have forms and returns its length.
  template <class Forms, class Unit>
  std::size_t WriteForms(std::basic_string_view<Unit> text);
  void Append(std::string_view source);
  void AppendLong(std::string_view source);
  void Grow(std::size_t count);

  /// Writes the bytes of a character in the document's page; false if it has none.
  bool InDocumentPage(char16_t unit);

  const ByteSink& sink_;
  int page_;
  std::deque<Waiting> waiting_;
  std::vector<char> buffer_;
  std::size_t size_ = 0;
  bool openWord_ = false;
  bool hasReset_ = false;
  bool afterText_ = false;  // the last characters have no word or brace behind them
};

}  // namespace lumenote
