#include "html/read/DataPicture.h"

#include <utility>

#include "document/pictures/PictureSource.h"
#include "html/source/Ascii.h"

namespace lumenote {
namespace {

int DigitOf(char16_t c) {
  if (c >= u'A' && c <= u'Z') return c - u'A';
  if (c >= u'a' && c <= u'z') return c - u'a' + 26;
  if (IsAsciiDigit(c)) return c - u'0' + 52;
  if (c == u'+' || c == u'-') return 62;
  return c == u'/' || c == u'_' ? 63 : -1;
}

/// What is no digit of base 64 is skipped.
std::string Decoded(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3 + 3);
  unsigned bits = 0;
  int count = 0;
  for (const char16_t c : text) {
    const int digit = DigitOf(c);
    if (digit < 0) continue;
    bits = bits << 6 | static_cast<unsigned>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 0xFF);
  }
  return bytes;
}

/// The type in "data:image/png;base64".
std::optional<PictureType> TypeOf(std::u16string_view head) {
  if (StartsWithName(head, u"data:image/png")) return PictureType::Png;
  const bool jpeg =
      StartsWithName(head, u"data:image/jpeg") || StartsWithName(head, u"data:image/jpg");
  return jpeg ? std::optional(PictureType::Jpeg) : std::nullopt;
}

}  // namespace

std::optional<std::string> ReadDataPicture(std::u16string_view address, int width, int height) {
  constexpr std::u16string_view kMark = u";base64,";
  const std::size_t mark = address.substr(0, 256).find(kMark);
  const std::optional<PictureType> type = TypeOf(address);
  if (!type || mark == address.npos) return std::nullopt;
  std::string bytes = Decoded(address.substr(mark + kMark.size()));
  if (bytes.empty()) return std::nullopt;
  return PictureGroup({*type, std::move(bytes), width, height});
}

}  // namespace lumenote
