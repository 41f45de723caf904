// The double-byte code pages 932, 936, 949 and 950. They also serve for the Macintosh pages 10001,
// 10008, 10003 and 10002, which differ in a few signs only.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// A page in packed form; see DoubleBytePage.cpp for the format.
struct PackedPage {
  int number;
  std::string_view cells;
};
extern const PackedPage kDoubleBytePages[4];

/// An unpacked page: a cell for each pair of lead and trail byte.
class DoubleBytePage {
 public:
  /// The page, unpacked on first use; null for another number.
  static const DoubleBytePage* Find(int number);
  static bool Is(int number);

  /// Appends to `out`. An invalid byte becomes U+FFFD; an ASCII byte that does not pair with the
  /// lead byte before it is itself.
  void Decode(std::string_view bytes, std::u16string& out) const;

 private:
  explicit DoubleBytePage(const PackedPage& packed);

  bool Leads(unsigned char byte) const;
  char16_t Single(unsigned char byte) const;
  /// 0 if the page lacks the character.
  char16_t Pair(unsigned char lead, unsigned char trail) const;

  int number_;
  std::vector<char16_t> cells_;
};

}  // namespace lumenote
