#include "ocr/TextIndex.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Characters.h"

namespace lumenote {

namespace {

constexpr std::size_t kRun = 4;  // characters

std::size_t Slot(const char16_t* run) {
  std::uint64_t units = 0;
  for (std::size_t i = 0; i < kRun; ++i) units = units << 16 | run[i];
  return static_cast<std::size_t>((units * 0x9E3779B97F4A7C15u) >> 46);
}

}  // namespace

TextIndex::TextIndex(std::u16string text) : text_(std::move(text)) { Add(0, text_.size()); }

bool TextIndex::MayContain(std::u16string_view part) const {
  const std::u16string folded = Lower(part);
  for (std::size_t at = 0; at + kRun <= folded.size(); ++at)
    if (!runs_[Slot(&folded[at])]) return false;
  return true;
}

void TextIndex::Replaced(std::size_t at, std::size_t length, std::u16string_view replacement) {
  at = std::min(at, text_.size());
  text_.replace(at, length, replacement);
  Add(at - std::min(at, kRun - 1), at + replacement.size());
}

void TextIndex::Add(std::size_t from, std::size_t to) {
  const std::u16string folded =
      Lower(std::u16string_view(text_).substr(from, to - from + kRun - 1));
  for (std::size_t at = 0; at + kRun <= folded.size(); ++at) runs_.set(Slot(&folded[at]));
}

}  // namespace lumenote
