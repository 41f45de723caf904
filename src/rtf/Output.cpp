// Buffering and the lexical rules of RTF, seen from the writer.
#include "rtf/Output.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

#include "rtf/PlainText.h"

namespace lumenote {
namespace {

/// Copies the plain beginning of `text`; returns its length.
std::size_t PlainInto(std::u16string_view text, char* out) {
  std::size_t done = 0;
  while (done + kPlainStep <= text.size()) {
    const int plain = CopyPlain(text.data() + done, out + done);
    done += static_cast<std::size_t>(plain);
    if (plain < kPlainStep) return done;
  }
  for (; done < text.size() && IsPlain(text[done]); ++done)
    out[done] = static_cast<char>(text[done]);
  return done;
}

}  // namespace

Output::Output(const ByteSink& sink) : sink_(sink), buffer_(kPiece + kShort) {}

void Output::Append(std::string_view source) {
  if (source.size() > kShort) return AppendLong(source);
  std::copy_n(source.data(), source.size(), buffer_.data() + size_);
  Grow(source.size());
}

void Output::AppendLong(std::string_view source) {
  for (; source.size() > kShort; source.remove_prefix(kShort)) Append(source.substr(0, kShort));
  Append(source);
}

void Output::Grow(std::size_t count) {
  size_ += count;
  if (size_ >= kPiece) Flush();
}

void Output::Flush() {
  sink_({buffer_.data(), size_});
  size_ = 0;
}

void Output::Word(std::string_view name) {
  buffer_[size_] = '\\';
  std::copy_n(name.data(), name.size(), buffer_.data() + size_ + 1);
  Grow(name.size() + 1);
  openWord_ = true;
}

void Output::Word(std::string_view name, int number) {
  constexpr std::size_t kLongestNumber = 11;
  Word(name);
  char* const digits = buffer_.data() + size_;
  Grow(static_cast<std::size_t>(std::to_chars(digits, digits + kLongestNumber, number).ptr -
                                digits));
}

void Output::Words(std::string_view source) {
  if (source.empty()) return;
  Append(source);
  openWord_ = source.back() != '}';
}

void Output::Raw(std::string_view source) {
  Append(source);
  openWord_ = false;
}

void Output::Hex(int byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  const char escape[] = {'\\', '\'', kDigits[byte >> 4], kDigits[byte & 15]};
  std::copy_n(escape, sizeof escape, buffer_.data() + size_);
  Grow(sizeof escape);
  openWord_ = false;
}

void Output::Unicode(char16_t unit) {
  Word("u", static_cast<std::int16_t>(unit));
  Raw("?");
}

std::size_t Output::Plain(std::u16string_view text) {
  if (text.empty() || !IsPlain(text.front())) return 0;
  if (openWord_) Raw(" ");
  std::size_t done = 0;
  std::size_t count = 0;
  std::size_t room = 0;
  do {
    room = kPiece + kShort - size_;
    count = PlainInto(text.substr(done, room), buffer_.data() + size_);
    Grow(count);
    done += count;
  } while (count == room);
  return done;
}

}  // namespace lumenote
