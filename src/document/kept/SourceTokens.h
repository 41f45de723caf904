// Reads kept source: ASCII with paired braces, but for binary data, which has no tokens.
#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lumenote {

struct SourceToken {
  enum class Kind : std::uint8_t { Open, Close, Word, Character };
  Kind kind = Kind::Character;
  bool starred = false;  // a word after \*
  bool hasNumber = false;
  char16_t character = 0;
  int byte = -1;  // of a character that the source gives by its byte, read as page 1252
  std::string_view word{};
  int number = 0;
};

class SourceTokens {
 public:
  /// The source outlives this object.
  explicit SourceTokens(std::string_view source) : rest_(source) {}

  /// The next token, nothing at the end. A \u is the character that it names; those that stand for
  /// it are skipped, as far as the group goes.
  std::optional<SourceToken> Next();
  /// Length of the source behind the last token.
  std::size_t Left() const { return rest_.size(); }

 private:
  std::optional<SourceToken> Take();
  std::optional<SourceToken> Control();
  SourceToken Byte();
  SourceToken Word();
  bool Skips(SourceToken& token);
  void Nest(SourceToken::Kind brace);
  void SkipBytes(int count);

  std::string_view rest_;
  std::vector<int> fallbacks_{1};  // the \uc value of each open group; never empty
  bool starred_ = false;           // the next word is
  int skipped_ = 0;                // characters still to skip after a \u
};

}  // namespace lumenote
