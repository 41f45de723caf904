#include "ocr/RtfHeader.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "base/Numbers.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kPrefix = u"$$";
constexpr std::size_t kSlice = 3;
constexpr std::u16string_view kCharsetEnd = u"HARSET0 ";

/// Whether `capitals` (ASCII) occurs at `at`, in any letter case.
bool MatchesAt(std::u16string_view text, std::size_t at, std::u16string_view capitals) {
  return std::ranges::equal(text.substr(at, capitals.size()), capitals, [](char16_t c, char16_t d) {
    return c == d || (c >= u'a' && c <= u'z' && c - u'a' + u'A' == d);
  });
}

/// Copies a source from left to right, with changes.
class Rewriter {
 public:
  explicit Rewriter(std::u16string_view source) : source_(source) {}

  std::u16string Run() {
    while (at_ + kSlice <= source_.size()) Step();
    return std::move(out_);
  }

 private:
  void Step() {
    if (MatchesAt(source_, at_, u"\\SL"))
      Rewrite(u'\\', u"240\\");
    else if (MatchesAt(source_, at_, u"\\FS"))
      Rewrite(u' ', u"22 ");
    else if (MatchesAt(source_, at_, u"\\FC"))
      FontCharset();
    else
      Copy(1);
  }

  /// Copies the slice, then writes `value` instead of everything up to and including `end`.
  void Rewrite(char16_t end, std::u16string_view value) {
    Copy(kSlice);
    SkipPast(end, value);
  }

  void FontCharset() {
    Copy(kSlice);
    const bool ansi = MatchesAt(source_, at_, kCharsetEnd);
    Copy(kCharsetEnd.size());
    if (ansi) SkipPast(u';', u"Times New Roman ;");
  }

  void Copy(std::size_t count) {
    const std::u16string_view piece = source_.substr(at_, count);
    out_ += piece;
    at_ += piece.size();
  }

  void SkipPast(char16_t end, std::u16string_view value) {
    const std::size_t found = source_.find(end, at_);
    at_ = found == std::u16string_view::npos ? source_.size() : found + 1;
    out_ += value;
  }

  std::u16string_view source_;
  std::u16string out_;
  std::size_t at_ = 0;
};

}  // namespace

std::u16string NormaliserEnteteRtf(std::u16string& rtf) {
  ToInt16(static_cast<std::int64_t>(rtf.size()) + 1);
  rtf.insert(0, kPrefix);
  return Rewriter(rtf).Run();
}

}  // namespace lumenote
