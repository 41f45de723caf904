#include "document/kept/PictureSource.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

constexpr std::string_view kBlips[] = {"pngblip", "jpegblip"};  // indexed by PictureType

/// Collects bytes from hexadecimal digits.
class HexBytes {
 public:
  void Add(char16_t digit) {
    constexpr std::u16string_view kDigits = u"0123456789abcdefABCDEF";
    const std::size_t at = kDigits.find(digit);
    if (at == kDigits.npos) return;
    const std::size_t value = at < 16 ? at : at - 6;
    if (half_) bytes_ += static_cast<char>(*half_ << 4 | value);
    half_ = half_ ? std::nullopt : std::optional(value);
  }
  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
  std::optional<std::size_t> half_;
};

std::string Goal(std::string_view word, int twips) {
  return twips > 0 ? std::string(word) + std::to_string(twips) : std::string();
}

/// Returns whether the word tells the type.
bool TakeWord(const SourceToken& token, PictureData& picture) {
  if (token.word == "picwgoal") picture.width = token.number;
  if (token.word == "pichgoal") picture.height = token.number;
  const auto blip = std::ranges::find(kBlips, token.word);
  if (blip == std::end(kBlips)) return false;
  picture.type = static_cast<PictureType>(blip - std::begin(kBlips));
  return true;
}

}  // namespace

std::string PictureGroup(const PictureData& picture) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string group = "{\\pict\\";
  group += kBlips[static_cast<std::size_t>(picture.type)];
  group += Goal("\\picwgoal", picture.width) + Goal("\\pichgoal", picture.height) + "\r\n";
  group.reserve(group.size() + 2 * picture.bytes.size() + 1);
  for (const char c : picture.bytes) {
    const auto byte = static_cast<unsigned char>(c);
    group += kDigits[byte >> 4];
    group += kDigits[byte & 15];
  }
  return group += '}';
}

// The bytes are the digits outside inner groups, such as a picture's properties.
std::optional<PictureData> PictureOf(std::string_view group) {
  using Kind = SourceToken::Kind;
  const std::size_t start = group.find("\\pict");
  if (start == group.npos) return std::nullopt;
  PictureData picture;
  bool known = false;
  int depth = 0;
  HexBytes bytes;
  SourceTokens tokens(group.substr(start));
  for (auto token = tokens.Next(); token && depth >= 0; token = tokens.Next()) {
    if (token->kind == Kind::Open) ++depth;
    if (token->kind == Kind::Close) --depth;
    if (depth != 0) continue;
    if (token->kind == Kind::Character) bytes.Add(token->character);
    if (token->kind == Kind::Word) known |= TakeWord(*token, picture);
  }
  picture.bytes = bytes.Take();
  if (!known || picture.bytes.empty()) return std::nullopt;
  return picture;
}

}  // namespace lumenote
