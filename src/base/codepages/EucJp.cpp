#include "base/codepages/EucJp.h"

namespace lumenote {
namespace {

constexpr int kFirst = 0xA1, kLast = 0xFE;  // of both bytes of a pair
constexpr int kKatakana = 0x8E, kSupplement = 0x8F;
constexpr char kNone = '\xFD';  // in page 932

bool InPair(int byte) { return byte >= kFirst && byte <= kLast; }

/// Two rows of 94 characters are one row of page 932, its lead bytes leaving out 0xA0 to 0xDF.
void AppendPair(int row, int cell, std::string& out) {
  const int lead = (row >> 1) + (row < 62 ? 0x81 : 0xC1);
  const int trail = row % 2 != 0 ? cell + 0x9F : cell + (cell < 63 ? 0x40 : 0x41);
  out += static_cast<char>(lead);
  out += static_cast<char>(trail);
}

}  // namespace

std::string Page932OfEucJp(std::string_view bytes) {
  std::string out;
  const auto at = [&](std::size_t i) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0;
  };
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const int byte = at(i), next = at(i + 1);
    if (byte < 0x80) {
      out += bytes[i];
    } else if (byte == kKatakana && next >= kFirst && next <= 0xDF) {
      out += bytes[++i];
    } else if (byte == kSupplement && InPair(next) && InPair(at(i + 2))) {
      out += kNone;
      i += 2;
    } else if (InPair(byte) && InPair(next)) {
      AppendPair(byte - kFirst, next - kFirst, out);
      ++i;
    } else {
      out += kNone;
    }
  }
  return out;
}

}  // namespace lumenote
