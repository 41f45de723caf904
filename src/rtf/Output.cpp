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

Output::Output(const ByteSink& sink) : sink_(sink), buffer_(kPiece) {}

void Output::Append(std::string_view source) {
  while (!source.empty()) {
    if (size_ == kPiece) Flush();
    const std::size_t count = std::min(source.size(), kPiece - size_);
    std::copy_n(source.data(), count, buffer_.data() + size_);
    size_ += count;
    source.remove_prefix(count);
  }
}

void Output::Flush() {
  sink_({buffer_.data(), size_});
  size_ = 0;
}

void Output::Word(std::string_view name) {
  if (size_ == kPiece) Flush();
  buffer_[size_++] = '\\';
  Append(name);
  openWord_ = true;
}

void Output::Word(std::string_view name, int number) {
  char digits[12];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  Word(name);
  Append({digits, end});
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
  Raw({escape, sizeof escape});
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
  do {
    if (size_ == kPiece) Flush();
    count = PlainInto(text.substr(done, kPiece - size_), buffer_.data() + size_);
    size_ += count;
    done += count;
  } while (size_ == kPiece && count > 0);
  return done;
}

}  // namespace lumenote
