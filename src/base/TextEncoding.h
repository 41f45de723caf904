// Encodings of plain-text files: code page 1252, UTF-8, UTF-16.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

enum class TextEncoding {
  Windows1252,
  Utf8,         // without a byte order mark
  Utf8WithBom,  // here and below: with a byte order mark, which is not part of the text
  Utf16Le,
  Utf16Be,
};

/// Detects a file's encoding: by its byte order mark; UTF-8 if all bytes are valid, not all ASCII,
/// and no C1 control occurs (text in page 1252 almost never passes); else page 1252.
TextEncoding DetectEncoding(std::string_view bytes);

/// Detects incrementally, from chunks that may be cut anywhere.
class EncodingDetector {
 public:
  void Add(std::string_view bytes);
  TextEncoding Encoding() const;

 private:
  std::string start_;  // enough for a byte order mark
  std::string open_;   // an incomplete character at the end
  bool ascii_ = true;  // up to `open_`
  bool utf8_ = true;   // up to `open_`; and free of C1 controls
};

/// The default encoding for new text: page 1252 if it fits, else UTF-8 with a byte order mark. Only
/// an unpaired surrogate needs UTF-16.
TextEncoding EncodingFor(std::u16string_view text);

/// Invalid sequences become U+FFFD; half a unit at the end is dropped.
std::u16string DecodeText(std::string_view bytes, TextEncoding encoding);
/// Empty for an encoding without one.
std::string_view ByteOrderMark(TextEncoding encoding);
/// `encoding` must be able to encode the text, as the result of `EncodingFor` is. The text may come
/// in chunks, cut between characters.
std::string EncodeWithoutBom(std::u16string_view text, TextEncoding encoding);
/// The same, preceded by the byte order mark.
std::string EncodeText(std::u16string_view text, TextEncoding encoding);
/// The bytes of a file that was read as `encoding` and now holds `text`: in the same form of UTF-8,
/// else in page 1252, but always such that `DetectEncoding` detects the encoding written. Hence
/// UTF-8 gets a byte order mark where page 1252 lacks a character or detection would guess wrong.
std::string EncodeTextFile(std::u16string_view text, TextEncoding encoding);

/// Chooses incrementally, from chunks cut between characters, the encoding that `EncodeTextFile`
/// gives to a text that was not read as UTF-8.
class EncodingChooser {
 public:
  void Add(std::u16string_view text);
  TextEncoding Encoding() const;

 private:
  bool wellFormed_ = true;
  bool fits_ = true;        // page 1252
  EncodingDetector bytes_;  // detects the encoding of the page 1252 bytes
};

}  // namespace lumenote
