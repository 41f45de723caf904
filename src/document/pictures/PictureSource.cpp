#include "document/pictures/PictureSource.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

using Kind = SourceToken::Kind;

constexpr std::size_t kLongestHead = 65536;  // bytes before the data

struct TypeWord {
  std::string_view word;
  PictureType type;
};
constexpr TypeWord kTypes[] = {
    {"pngblip", PictureType::Png},        {"jpegblip", PictureType::Jpeg},
    {"dibitmap", PictureType::Bitmap},    {"wbitmap", PictureType::DeviceBitmap},
    {"wmetafile", PictureType::Metafile}, {"emfblip", PictureType::EnhancedMetafile},
};

struct ExtentWord {
  std::string_view word;
  PictureExtent PictureSource::*extent;
  int PictureExtent::*value;
};
constexpr ExtentWord kExtents[] = {
    {"picw", &PictureSource::across, &PictureExtent::size},
    {"pich", &PictureSource::down, &PictureExtent::size},
    {"picwgoal", &PictureSource::across, &PictureExtent::goal},
    {"pichgoal", &PictureSource::down, &PictureExtent::goal},
    {"picscalex", &PictureSource::across, &PictureExtent::scale},
    {"picscaley", &PictureSource::down, &PictureExtent::scale},
    {"piccropl", &PictureSource::across, &PictureExtent::cropBefore},
    {"piccropr", &PictureSource::across, &PictureExtent::cropBehind},
    {"piccropt", &PictureSource::down, &PictureExtent::cropBefore},
    {"piccropb", &PictureSource::down, &PictureExtent::cropBehind},
};

void TakeWord(const SourceToken& token, PictureSource& picture) {
  const auto* const type = std::ranges::find(kTypes, token.word, &TypeWord::word);
  if (type != std::end(kTypes)) picture.type = type->type;
  const auto* const extent = std::ranges::find(kExtents, token.word, &ExtentWord::word);
  if (extent != std::end(kExtents)) picture.*extent->extent.*extent->value = token.number;
  if (token.word == "wbmbitspixel") picture.bitsPerPixel = token.number;
  if (token.word == "wbmwidthbytes") picture.bytesPerRow = token.number;
}

/// Where the words of the first group of a picture begin; npos if there is none.
std::size_t FindWords(std::string_view source) {
  constexpr std::string_view kOpening = "{\\pict";
  for (std::size_t at = source.find(kOpening); at != source.npos; at = source.find(kOpening, at)) {
    at += kOpening.size();
    const char next = at < source.size() ? source[at] : '}';
    if ((next < 'a' || next > 'z') && (next < 'A' || next > 'Z')) return at;
  }
  return source.npos;
}

constexpr auto kDigitValues = [] {
  std::array<int, 256> values{};
  values.fill(-1);
  constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
  for (std::size_t i = 0; i < kDigits.size(); ++i)
    values[static_cast<unsigned char>(kDigits[i])] = static_cast<int>(i < 16 ? i : i - 6);
  return values;
}();

/// Collects bytes from hexadecimal digits; other characters mean nothing.
class HexBytes {
 public:
  explicit HexBytes(std::size_t limit) : limit_(limit) {}

  bool IsFull() const { return bytes_.size() >= limit_; }
  void Add(std::string_view digits) {
    bytes_.reserve(std::min(limit_, bytes_.size() + digits.size() / 2 + 1));
    for (auto digit = digits.begin(); digit != digits.end() && !IsFull(); ++digit) Add(*digit);
  }
  std::string Take() { return std::move(bytes_); }

 private:
  void Add(char digit) {
    const int value = kDigitValues[static_cast<unsigned char>(digit)];
    if (value < 0) return;
    if (half_ >= 0) bytes_ += static_cast<char>(half_ << 4 | value);
    half_ = half_ >= 0 ? -1 : value;
  }

  const std::size_t limit_;
  std::string bytes_;
  int half_ = -1;  // the first digit of a byte
};

std::string Goal(std::string_view word, int twips) {
  return twips > 0 ? std::string(word) + std::to_string(twips) : std::string();
}

}  // namespace

std::optional<PictureSource> FindPicture(std::string_view source) {
  const std::size_t words = FindWords(source);
  if (words == source.npos) return std::nullopt;
  const std::string_view rest = source.substr(words);
  const std::string_view head = rest.substr(0, kLongestHead);
  PictureSource picture;
  SourceTokens tokens(head);
  int depth = 0;
  for (std::size_t at = 0; const auto token = tokens.Next(); at = head.size() - tokens.Left()) {
    if (depth == 0 && token->kind == Kind::Character) {
      picture.data = rest.substr(at);
      break;
    }
    if (token->kind == Kind::Open) ++depth;
    if (token->kind == Kind::Close && --depth < 0) break;
    if (token->kind == Kind::Word && depth == 0) TakeWord(*token, picture);
  }
  return picture;
}

// Digits in inner groups, such as a picture's properties, are none of the bytes.
std::string BytesOf(const PictureSource& picture, std::size_t limit) {
  std::string_view rest = picture.data;
  HexBytes bytes(limit);
  for (int depth = 0; depth >= 0 && !rest.empty() && !bytes.IsFull();) {
    const std::size_t control = std::min(rest.find_first_of("\\{}"), rest.size());
    if (depth == 0) bytes.Add(rest.substr(0, control));
    rest.remove_prefix(control);
    SourceTokens tokens(rest);
    const auto token = tokens.Next();
    if (token && token->kind == Kind::Open) ++depth;
    if (token && token->kind == Kind::Close) --depth;
    rest = rest.substr(rest.size() - tokens.Left());
  }
  return bytes.Take();
}

std::string PictureGroup(const PictureData& picture) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string group = "{\\pict\\";
  group += std::ranges::find(kTypes, picture.type, &TypeWord::type)->word;
  group += Goal("\\picwgoal", picture.width) + Goal("\\pichgoal", picture.height) + "\r\n";
  group.reserve(group.size() + 2 * picture.bytes.size() + 1);
  for (const char c : picture.bytes) {
    const auto byte = static_cast<unsigned char>(c);
    group += kDigits[byte >> 4];
    group += kDigits[byte & 15];
  }
  return group += '}';
}

std::optional<PictureData> PictureOf(std::string_view source) {
  const std::optional<PictureSource> found = FindPicture(source);
  if (!found || !IsKeptFile(found->type)) return std::nullopt;
  std::string bytes = BytesOf(*found);
  if (bytes.empty()) return std::nullopt;
  return PictureData{found->type, std::move(bytes), found->across.goal, found->down.goal};
}

}  // namespace lumenote
