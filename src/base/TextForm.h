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
/// The form that a text is written in when nothing else asks for another one: page 1252 when it
/// fits, else UTF-8 with a mark. Only a surrogate that stands alone needs UTF-16.
TextForm FormFor(std::u16string_view text);

/// Invalid sequences become U+FFFD, half a unit at the end is dropped.
std::u16string DecodeText(std::string_view bytes, TextForm form);
/// `form` has to hold the text, as the one that `FormFor` gives does.
std::string EncodeText(std::u16string_view text, TextForm form);
/// The bytes of a file that holds `text` and was read in `form` before: in that form of UTF-8, else
/// in page 1252, but always such that `FormOfText` knows them for what they are. So UTF-8 gets a
/// mark where page 1252 lacks a character or reading would guess wrong.
std::string EncodeTextFile(std::u16string_view text, TextForm form);

}  // namespace lumenote
