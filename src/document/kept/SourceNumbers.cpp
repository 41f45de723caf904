#include "document/kept/SourceNumbers.h"

#include <algorithm>
#include <utility>

#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

/// Copies a source, changed in places.
class Copier {
 public:
  Copier(std::string_view source, const NumberMap& map) : source_(source), map_(map) {}

  std::string Copied() {
    SourceTokens tokens(source_);
    while (const auto token = tokens.Next()) {
      const bool word = token->kind == SourceToken::Kind::Word;
      if (std::exchange(afterPlain_, false) && !(word && token->word == "f")) SayFont();
      if (!word) continue;
      if (const auto table = TableNamedBy(token->word)) Number(*token, *table);
      if (token->word != "plain") continue;
      afterPlain_ = true;
      wordEnd_ = EndOf(token->word);
    }
    if (afterPlain_) SayFont();
    out_ += source_.substr(copied_);
    return std::move(out_);
  }

 private:
  std::size_t EndOf(std::string_view word) const {
    return static_cast<std::size_t>(word.data() + word.size() - source_.data());
  }
  void CopyTo(std::size_t end) {
    out_ += source_.substr(copied_, end - copied_);
    copied_ = end;
  }
  void Number(const SourceToken& token, HeadTable table) {
    const int number = map_.number(table, token.number);
    if (number == token.number) return;
    CopyTo(EndOf(token.word));
    out_ += std::to_string(number);
    if (token.hasNumber && source_[copied_] == '-') ++copied_;
    if (token.hasNumber)
      copied_ = std::min(source_.find_first_not_of("0123456789", copied_), source_.size());
  }
  void SayFont() {
    if (map_.plainFont < 0) return;
    CopyTo(wordEnd_);
    out_ += "\\f" + std::to_string(map_.plainFont);
  }

  std::string_view source_;
  const NumberMap& map_;
  std::string out_;
  std::size_t copied_ = 0;
  std::size_t wordEnd_ = 0;  // of the last \plain
  bool afterPlain_ = false;
};

}  // namespace

std::string WithNumbers(std::string_view source, const NumberMap& map) {
  return Copier(source, map).Copied();
}

}  // namespace lumenote
