// Code pages: bytes to UTF-16.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

inline constexpr int kPageOfWindows = 1252;
inline constexpr int kPageOfSymbols = 42;  // a symbol font's own: bytes go to U+F000 and up
inline constexpr int kPageUtf8 = 65001;

/// Decodes a run of bytes in a Windows, OEM or Mac code page by its number (as in \ansicpg);
/// an unknown page reads as 1252. No character of a multi-byte page may be cut. Appends to `out`.
void DecodeCodePage(int page, std::string_view bytes, std::u16string& out);
/// The code page of an RTF font character set (\fcharset); 0 for "the document's own".
int CodePageOfCharset(int charset);

/// A code page looked up once, for decoding byte by byte.
class CodePage {
 public:
  /// An unknown page is 1252.
  explicit CodePage(int number = kPageOfWindows);

  /// Whether a character may take several bytes; such text goes through `DecodeCodePage`.
  bool MultiByte() const { return multiByte_; }
  /// Whether the bytes below 0x80 stand for themselves.
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
