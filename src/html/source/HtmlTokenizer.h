// Splits HTML into tokens.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

struct HtmlAttribute {
  std::string name;  // in small letters
  std::u16string value;
};

/// Valid until the next token is read.
struct HtmlToken {
  enum class Kind { Text, Start, End, Finish };
  Kind kind = Kind::Finish;
  std::u16string_view text;  // of Text: characters, references resolved
  std::string name;          // of Start and End: the element's, in small letters
  std::vector<HtmlAttribute> attributes;

  /// The value of an attribute; null if it is missing.
  const std::u16string* Find(std::string_view attribute) const;
};

/// Tokenizes by the rules of the HTML standard. Comments, document types and processing
/// instructions are skipped, and so is a tag that the source's end cuts off. Accepts any text; a
/// text may come in several tokens.
class HtmlTokenizer {
 public:
  /// The source must outlive the tokenizer.
  explicit HtmlTokenizer(std::u16string_view source) : rest_(source) {}

  const HtmlToken& Next();

 private:
  bool AtTag() const;
  bool TakeMarkup();
  void SkipComment();
  void SkipPast(std::u16string_view end);
  bool TakeTag(HtmlToken::Kind kind);
  std::string TakeName();
  bool TakeAttribute();
  std::u16string TakeValue();
  void TakeText();
  void TakeRawText();
  std::size_t RawEnd() const;
  bool EndsRaw(std::size_t at) const;
  void SkipSpaces();

  std::u16string_view rest_;  // not read yet
  std::u16string buffer_;     // of a resolved reference
  HtmlToken token_;
  std::string raw_;  // the element whose content is text only; empty outside
};

}  // namespace lumenote
