#include "ocr/TextIndex.h"

#include <algorithm>
#include <cstdint>

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

TextIndex::TextIndex(std::u16string_view text) : text_(Lower(text)) { Add(0, text_.size()); }

bool TextIndex::MayContain(std::u16string_view part) const {
  const std::u16string folded = Lower(part);
  for (std::size_t at = 0; at + kRun <= folded.size(); ++at)
    if (!runs_[Slot(&folded[at])]) return false;
  return true;
}

void TextIndex::Replaced(std::size_t at, std::size_t length, std::u16string_view replacement) {
  text_.replace(at, length, Lower(replacement));
  Add(at - std::min(at, kRun - 1), at + replacement.size());
}

void TextIndex::Add(std::size_t from, std::size_t to) {
  to = std::min(to, text_.size() - std::min(text_.size(), kRun - 1));
  for (; from < to; ++from) runs_.set(Slot(&text_[from]));
}

}  // namespace lumenote
