// Buffering and the lexical rules of RTF, seen from the writer.
#include "rtf/Output.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>

namespace lumenote {
namespace {

constexpr std::array<bool, 128> kPlain = [] {
  std::array<bool, 128> plain{};
  for (int c = 0x20; c < 0x7F; ++c) plain[c] = c != '\\' && c != '{' && c != '}';
  return plain;
}();

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
  Append("\\");
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
  openWord_ = true;
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
  if (text.empty() || text[0] >= 0x80 || !kPlain[text[0]]) return 0;
  if (openWord_) Raw(" ");
  std::size_t done = 0;
  while (done < text.size() && text[done] < 0x80 && kPlain[text[done]]) {
    if (size_ == kPiece) Flush();
    const std::size_t limit = std::min(text.size(), done + kPiece - size_);
    char* out = buffer_.data() + size_ - done;
    for (; done < limit && text[done] < 0x80 && kPlain[text[done]]; ++done) {
      out[done] = static_cast<char>(text[done]);
    }
    size_ = static_cast<std::size_t>(out + done - buffer_.data());
  }
  return done;
}

}  // namespace lumenote
