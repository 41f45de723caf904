// Code pages to UTF-16 and back.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

inline constexpr int kPageOfWindows = 1252;
inline constexpr int kPageOfSymbols = 42;  // of symbol fonts: byte n is U+F000 + n
inline constexpr int kPageUtf8 = 65001;
inline constexpr int kDefaultCharset = 1;  // \fcharset of fonts that leave it to the document

/// Decodes bytes of a Windows, OEM or Mac code page, given by number as in \ansicpg, and appends to
/// `out`; an unknown page is read as 1252. Must not split a multi-byte character.
void DecodeCodePage(int page, std::string_view bytes, std::u16string& out);
/// The bytes of a unit from U+0080 on; none if the page lacks it, as it does half a surrogate pair.
/// EUC-JP is only read.
std::string EncodeCodePage(int page, char16_t unit);
/// The code page of a font's character set (\fcharset); 0 for the document's own.
int CodePageOfCharset(int charset);

/// A code page that is looked up once, for byte-by-byte decoding.
class CodePage {
 public:
  /// An unknown page is 1252.
  explicit CodePage(int number = kPageOfWindows);

  /// Whether a character may have several bytes; such text must use `DecodeCodePage`.
  bool MultiByte() const { return multiByte_; }
  /// Whether bytes below 0x80 are ASCII.
  bool KeepsAscii() const { return number_ != kPageOfSymbols; }
  int Number() const { return number_; }

  char16_t operator[](unsigned char byte) const {
    if (byte >= 0x80) return upper_[byte - 0x80];
    return KeepsAscii() || byte <= ' ' ? byte : static_cast<char16_t>(0xF000 + byte);
  }

 private:
  const char16_t* upper_;
  int number_;
  bool multiByte_;
};

}  // namespace lumenote
