// A note without a window: read, convert, clean up and write it in memory.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lumenote/RuntimeError.h"

namespace lumenote {

/// For programs that process many notes, or run on a server. A note may be used on any thread, but
/// by one thread at a time. A failed allocation throws std::bad_alloc.
class Note {
 public:
  /// Of the files that a note comes from and goes to.
  enum class Format { Rtf, Text, Html };

  /// Whether a file with these bytes is RTF.
  static bool IsRtf(std::string_view bytes);

  /// Reads the bytes of a note's file. Plain text may be UTF-8, UTF-16 with a byte order mark, or
  /// code page 1252; the encoding is detected. `Rtf` raises InvalidPropertyValue (380) when the
  /// bytes are not RTF; damaged RTF is read as far as possible. `Html` takes any bytes, in the
  /// encoding that they state.
  Note(std::string_view bytes, Format format);
  /// Detects whether it is RTF or plain text, too.
  explicit Note(std::string_view bytes) : Note(bytes, IsRtf(bytes) ? Format::Rtf : Format::Text) {}
  ~Note();
  /// A note that was moved from can be destroyed or assigned to, nothing else.
  Note(Note&&) noexcept;
  /// The same.
  Note& operator=(Note&&) noexcept;

  /// The format that the note was read in.
  Format Source() const;
  /// Paragraphs end with CR LF, lines within them with VT; an embedded object is U+FFFC.
  std::u16string Text() const;
  /// The note as a file: RTF, or text with CR LF line ends in the UTF-8 form it was read in, else
  /// in code page 1252, or as UTF-8 with a byte order mark if page 1252 lacks a character; or an
  /// HTML page in UTF-8.
  std::string Bytes(Format format) const;

  /// Cleans up recognised text as the editor does: applies the correction list, then tidies spaces,
  /// then gives the whole note one format. `correctionList` is the list's file: code page 1252, one
  /// `wrong=:=right` pair per line. Returns how often each pair was found, in list order. Raises
  /// InvalidArgument (5) for a line without `=:=`, and Overflow (6) if the text is, or becomes,
  /// longer than 32,767 characters; replacements made before the error remain.
  std::vector<std::int16_t> Clean(std::string_view correctionList);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace lumenote
