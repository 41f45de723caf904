// How plain text lies in files: code page 1252, UTF-8, UTF-16.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

enum class TextForm {
  Windows1252,
  Utf8,        // without a byte order mark
  MarkedUtf8,  // the marks of this and the next two are no part of the text
  LittleUtf16,
  BigUtf16,
};

/// The form that a file's bytes tell of: that of their byte order mark; UTF-8 when they are valid
/// as a whole, more than ASCII and free of C1 controls, which text in page 1252 all but never is;
/// else page 1252.
TextForm FormOfText(std::string_view bytes);

/// The same for bytes that come in pieces, cut anywhere; it keeps but a few of them.
class FormOfPieces {
 public:
  void Add(std::string_view bytes);
  TextForm Form() const;

 private:
  std::string start_;  // as many bytes as a mark has
  std::string open_;   // a character at the end that may have more bytes
  bool ascii_ = true;  // what came before it
  bool utf8_ = true;   // the same, without C1 controls
};

/// The form that a text is written in when nothing else asks for another one: page 1252 when it
/// fits, else UTF-8 with a mark. Only a surrogate that stands alone needs UTF-16.
TextForm FormFor(std::u16string_view text);

/// Invalid sequences become U+FFFD, half a unit at the end is dropped.
std::u16string DecodeText(std::string_view bytes, TextForm form);
/// The byte order mark of a form, empty where it has none.
std::string_view MarkOf(TextForm form);
/// `form` has to hold the text, as the one that `FormFor` gives does. A text may come in pieces,
/// cut between characters.
std::string EncodeWithoutMark(std::u16string_view text, TextForm form);
/// The same behind the mark of the form.
std::string EncodeText(std::u16string_view text, TextForm form);
/// The bytes of a file that holds `text` and was read in `form` before: in that form of UTF-8, else
/// in page 1252, but always such that `FormOfText` knows them for what they are. So UTF-8 gets a
/// mark where page 1252 lacks a character or reading would guess wrong.
std::string EncodeTextFile(std::u16string_view text, TextForm form);

/// The form that `EncodeTextFile` gives to a text that was in no form of UTF-8 before, for one that
/// comes in pieces, cut between characters.
class FormForPieces {
 public:
  void Add(std::u16string_view text);
  TextForm Form() const;

 private:
  bool unicode_ = true;
  bool fits_ = true;    // page 1252
  FormOfPieces bytes_;  // in that page
};

}  // namespace lumenote
