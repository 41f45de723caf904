// A note without a window: read, convert, clean up and write it, in the memory of the program.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lumenote/RuntimeError.h"

namespace lumenote {

/// For programs that work on many notes, or on a server. Each note may be used on any thread, by
/// one at a time. A failed allocation throws std::bad_alloc.
class Note {
 public:
  enum class Format { Rtf, Text };

  /// Whether the bytes of a file begin as RTF does.
  static bool IsRtf(std::string_view bytes);

  /// The bytes of a note's file. Plain text is UTF-8, UTF-16 with a mark or code page 1252, as the
  /// bytes tell. Raises InvalidPropertyValue (380) for `Rtf` where the bytes are no RTF; what is
  /// damaged behind its beginning is read as far as it goes.
  Note(std::string_view bytes, Format format);
  /// The same in the format that the bytes look like.
  explicit Note(std::string_view bytes) : Note(bytes, IsRtf(bytes) ? Format::Rtf : Format::Text) {}
  ~Note();
  Note(Note&&) noexcept;
  Note& operator=(Note&&) noexcept;

  /// The format it was read in.
  Format Source() const;
  /// Paragraphs end with CR LF, lines within them with VT; what is no text is U+FFFC.
  std::u16string Text() const;
  /// The note as a file: RTF, or text with CR LF in the form of UTF-8 that it was read in, else in
  /// code page 1252, as UTF-8 with a mark where that does not go.
  std::string Bytes(Format format) const;

  /// Cleans up recognised text as the editor does: the pairs of a correction list, given as the
  /// bytes of its file (code page 1252, a pair `wrong=:=right` a line), then blanks, then one
  /// format for the whole note. Returns how often each pair was found, in the list's order. Raises
  /// InvalidArgument (5) at a line of the list without `=:=`, Overflow (6) where the text is, or
  /// becomes, longer than 32,767 characters; what was replaced before stays so.
  std::vector<std::int16_t> Clean(std::string_view correctionList);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace lumenote
