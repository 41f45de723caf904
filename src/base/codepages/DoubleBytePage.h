// The double-byte code pages 932, 936, 949, 950 and 1361. They also serve for the Macintosh pages
// 10001, 10008, 10003 and 10002, which differ in a few signs only.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// A page in packed form; see DoubleBytePage.cpp for the format.
struct PackedPage {
  int number;
  std::string_view cells;
};
extern const PackedPage kDoubleBytePages[5];

/// An unpacked page: a cell for each pair of lead and trail byte.
class DoubleBytePage {
 public:
  /// The page, unpacked on first use; null for another number.
  static const DoubleBytePage* Find(int number);
  static bool Is(int number);

  /// Appends to `out`. An invalid byte becomes U+FFFD; an ASCII byte that does not pair with the
  /// lead byte before it is itself.
  void Decode(std::string_view bytes, std::u16string& out) const;
  /// The bytes of a character beyond ASCII; none if the page lacks it.
  std::string Encode(char16_t unit) const;

 private:
  explicit DoubleBytePage(const PackedPage& packed);

  bool Leads(unsigned char byte) const;
  char16_t Single(unsigned char byte) const;
  /// 0 if the page lacks the character.
  char16_t Pair(unsigned char lead, unsigned char trail) const;

  int number_;
  std::vector<char16_t> cells_;
  std::vector<std::uint16_t> bytes_;  // by character: one byte, or a pair with the lead byte high
};

}  // namespace lumenote
