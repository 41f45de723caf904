// Reads \fonttbl.
#include "rtf/read/tables/FontTable.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Strings.h"
#include "base/codepages/CodePage.h"
#include "rtf/words/FontFamilies.h"

namespace lumenote {
namespace {

std::uint8_t Small(int number) { return static_cast<std::uint8_t>(std::clamp(number, 0, 255)); }

/// The font being read, from \f to ";".
class Entry {
 public:
  explicit Entry(int documentPage, int number = -1)
      : documentPage_(documentPage), number_(number) {}

  int Number() const { return number_; }
  int Page() const { return page_; }
  FontFace Face() const;

  void Word(const Token& word);
  void Bytes(std::string_view bytes);
  /// Ends the fallback of the last \u.
  void EndFallback() { fallback_ = 0; }
  /// Decodes the bytes of the name read so far.
  void EndBytes();
  /// A name may say for which script the font is, if nothing else does.
  void UseScriptOfName();

 private:
  int documentPage_;
  int number_;
  int page_ = 0;
  int fallback_ = 0;   // fallback bytes of a \u still to skip
  std::string bytes_;  // of the name, not yet decoded
  FontFace face_;
};

FontFace Entry::Face() const {
  FontFace face = face_;
  face.name = TrimSpaces(face_.name);
  return face;
}

void Entry::Word(const Token& word) {
  if (word.text == "fcharset") {
    face_.charset = Small(word.number);
    if (page_ == 0) page_ = CodePageOfCharset(word.number);
  } else if (word.text == "cpg") {
    page_ = word.number;
  } else if (word.text == "fprq") {
    face_.pitch = Small(word.number);
  } else if (word.text == "u") {
    EndBytes();
    if (word.number != 0) face_.name.push_back(static_cast<char16_t>(word.number));
    fallback_ = 1;
  } else {
    const auto family = std::ranges::find(kFontFamilies, word.text);
    if (family != kFontFamilies.end())
      face_.family = static_cast<std::uint8_t>(family - kFontFamilies.begin());
  }
}

void Entry::Bytes(std::string_view bytes) {
  const int passed = std::min(fallback_, static_cast<int>(bytes.size()));
  fallback_ -= passed;
  bytes.remove_prefix(static_cast<std::size_t>(passed));
  bytes_ += bytes;
}

void Entry::EndBytes() {
  const bool ownPage = page_ != 0 && page_ != kPageOfSymbols;
  DecodeCodePage(ownPage ? page_ : documentPage_, std::exchange(bytes_, {}), face_.name);
}

void Entry::UseScriptOfName() {
  struct Script {
    std::u16string_view ending;
    std::uint8_t charset;
  };
  static constexpr Script kScripts[] = {
      {u" CE", 238}, {u" Cyr", 204}, {u" Greek", 161}, {u" Tur", 162}, {u" Baltic", 186}};
  const std::u16string_view name = TrimSpaces(face_.name);
  for (const Script& script : kScripts) {
    if (page_ != 0 || !name.ends_with(script.ending)) continue;
    face_.charset = script.charset;
    page_ = CodePageOfCharset(script.charset);
  }
}

}  // namespace

void FontTable::Read(Tokenizer& tokens, InternTable<FontFace>& faces, int documentPage) {
  Entry entry(documentPage);
  const auto start = [&](int number) {
    entry.EndBytes();
    entry.UseScriptOfName();
    if (entry.Number() >= 0) {
      const FontFace face = entry.Face();
      foreign_ |= std::ranges::any_of(face.name, [](char16_t unit) { return unit >= 0x80; });
      fonts_[entry.Number()] = {faces.Intern(face), entry.Page()};
    }
    entry = Entry(documentPage, number);
  };
  const auto text = [&](std::string_view bytes) {
    for (auto end = bytes.find(';'); end != bytes.npos; end = bytes.find(';')) {
      entry.Bytes(bytes.substr(0, end));
      start(-1);
      bytes.remove_prefix(end + 1);
    }
    entry.Bytes(bytes);
  };
  tokens.WhileInGroup([&](const Token& token) {
    if (EndsTable(token)) return false;
    const char byte = static_cast<char>(token.byte);
    if (token.kind == Token::Kind::Word && token.text == "f") {
      start(token.number);
    } else if (token.kind == Token::Kind::Word) {
      entry.Word(token);
    } else if (token.kind == Token::Kind::Open) {
      entry.EndFallback();
    } else if (token.kind == Token::Kind::Byte) {
      entry.Bytes({&byte, 1});
    } else if (token.kind == Token::Kind::Text || token.kind == Token::Kind::High) {
      text(token.text);
    } else if (token.kind == Token::Kind::Symbol && byte == '*') {
      tokens.SkipGroup();
    }
    return true;
  });
  start(-1);
}

const SourceFont* FontTable::Find(int number) const {
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? nullptr : &found->second;
}

}  // namespace lumenote
