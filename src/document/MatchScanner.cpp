#include "document/MatchScanner.h"

#include <algorithm>
#include <cstdint>

#include "base/Characters.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

/// The first of `at`..`end` - 1 for which `hit` holds, else `end`. Goes by whole blocks first, in a
/// form and of a size that compilers turn into vector instructions.
template <class Hit>
std::size_t FirstHit(std::size_t at, std::size_t end, Hit hit) {
  constexpr std::size_t kBlock = 32;
  for (; at + kBlock <= end; at += kBlock) {
    std::uint16_t found = 0;
    for (std::size_t i = 0; i < kBlock; ++i) found |= hit(at + i);
    if (found != 0) break;
  }
  while (at < end && hit(at) == 0) ++at;
  return at;
}

}  // namespace

MatchScanner::MatchScanner(const LeafList& leaves, std::u16string_view needle,
                           SearchOptions options, Position from)
    : options_(options),
      needle_(options.matchCase ? std::u16string(needle) : Lower(needle)),
      leaf_(leaves.CursorAt(from)) {
  if (!CanMatch()) needle_.clear();
  if (needle_.empty() || leaf_.AtEnd()) return;
  first_ = CasesOf(needle_.front());
  second_ = CasesOf(needle_[needle_.size() > 1]);
  at_ = static_cast<std::size_t>(from - leaf_.Start());
  if (leaf_.Start() > 0) previous_ = leaves.CursorAt(leaf_.Start() - 1)->text.View().back();
}

Position MatchScanner::Next(Position to) {
  if (needle_.empty()) return -1;
  const auto length = static_cast<Position>(needle_.size());
  for (; !leaf_.AtEnd(); NextLeaf()) {
    const std::u16string_view text = leaf_->text.View();
    for (; (at_ = NextCandidate(text, at_)) < text.size(); ++at_) {
      const Position start = leaf_.Start() + static_cast<Position>(at_);
      if (length > to - start) return -1;
      if (!MatchesAt(at_)) continue;
      at_ += needle_.size();
      return start;
    }
  }
  return -1;
}

bool MatchScanner::CanMatch() const {
  if (needle_.empty()) return false;
  const char16_t first = needle_.front();
  const char16_t last = needle_.back();
  return first != u'\n' && last != u'\r' && !IsLowSurrogate(first) && !IsHighSurrogate(last);
}

char16_t MatchScanner::Fold(char16_t c) const { return options_.matchCase ? c : ToLower(c); }

MatchScanner::Cases MatchScanner::CasesOf(char16_t c) const {
  return {c, options_.matchCase ? c : ToUpper(c)};
}

std::size_t MatchScanner::NextCandidate(std::u16string_view text, std::size_t at) const {
  const auto is = [](Cases cases, char16_t c) {
    return static_cast<std::uint16_t>((c == cases.small) | (c == cases.capital));
  };
  const char16_t* units = text.data();
  const Cases first = first_;
  const Cases second = second_;
  if (needle_.size() == 1 || at >= text.size()) {
    return FirstHit(at, text.size(), [=](std::size_t i) { return is(first, units[i]); });
  }
  // Of the leaf's last unit the next one lies elsewhere.
  const std::size_t last = text.size() - 1;
  at = FirstHit(at, last, [=](std::size_t i) {
    return static_cast<std::uint16_t>(is(first, units[i]) & is(second, units[i + 1]));
  });
  return at == last && !is(first, units[last]) ? text.size() : at;
}

bool MatchScanner::MatchesAt(std::size_t at) const {
  std::u16string_view text = leaf_->text.View();
  const char16_t before = at == 0 ? previous_ : text[at - 1];
  std::u16string_view rest = needle_;
  text.remove_prefix(at);
  for (LeafCursor leaf = leaf_;;) {
    const std::size_t count = std::min(text.size(), rest.size());
    if (!Same(text.substr(0, count), rest.substr(0, count))) return false;
    text.remove_prefix(count);
    rest.remove_prefix(count);
    if (rest.empty() && !options_.wholeWord) return true;
    if (text.empty()) {
      leaf.Next();
      if (!leaf.AtEnd()) text = leaf->text.View();
    }
    if (rest.empty()) {
      return !IsWordCharacter(before) && (text.empty() || !IsWordCharacter(text.front()));
    }
    if (text.empty()) return false;
  }
}

bool MatchScanner::Same(std::u16string_view text, std::u16string_view part) const {
  return std::equal(text.begin(), text.end(), part.begin(),
                    [this](char16_t a, char16_t b) { return Fold(a) == b; });
}

void MatchScanner::NextLeaf() {
  const std::u16string_view text = leaf_->text.View();
  previous_ = text.back();
  at_ -= std::min(at_, text.size());
  leaf_.Next();
}

}  // namespace lumenote
