// The double-byte code pages 932, 936, 949 and 950, which also serve for the Macintosh's 10001,
// 10008, 10003 and 10002: these differ in a few signs only.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// A page as it lies in the program; DoubleBytePage.cpp tells how it is packed.
struct PackedPage {
  int number;
  std::string_view cells;
};
extern const PackedPage kDoubleBytePages[4];

/// A page unpacked: a cell for each pair of a lead and a trail byte.
class DoubleBytePage {
 public:
  /// The page unpacked at its first use, or null when the number is none of these.
  static const DoubleBytePage* Find(int number);
  static bool Is(int number);

  /// Appends to `out`. Each byte that has no meaning gives U+FFFD; an ASCII byte behind a lead byte
  /// that it makes no pair with stands for itself.
  void Decode(std::string_view bytes, std::u16string& out) const;

 private:
  explicit DoubleBytePage(const PackedPage& packed);

  bool Leads(unsigned char byte) const;
  char16_t Single(unsigned char byte) const;
  /// 0 where the page has no character.
  char16_t Pair(unsigned char lead, unsigned char trail) const;

  int number_;
  std::vector<char16_t> cells_;
};

}  // namespace lumenote
