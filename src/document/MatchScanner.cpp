#include "document/MatchScanner.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "base/Characters.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

/// The first index of `at`..`end` - 1 that satisfies `hit`, else `end`. Scans whole blocks first,
/// in a form that compilers vectorise.
template <class Hit>
std::size_t FirstHit(std::size_t at, std::size_t end, Hit hit) {
  constexpr std::size_t kBlock = 32;
  std::array<decltype(hit(at)), kBlock> hits;  // NOLINT(*-member-init): filled by each block
  for (; at + kBlock <= end; at += kBlock) {
    decltype(hit(at)) any = 0;
    for (std::size_t i = 0; i < kBlock; ++i) any |= hits[i] = hit(at + i);
    if (any != 0) return at + static_cast<std::size_t>(std::ranges::find(hits, 1) - hits.begin());
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
  openings_ = {OpeningIn<char>(), OpeningIn<char16_t>()};
  at_ = static_cast<std::size_t>(from - leaf_.Start());
  if (at_ == 0 && from > 0) previous_ = leaves.CursorAt(from - 1)->text.View().Back();
}

Position MatchScanner::Next(Position to) {
  if (needle_.empty()) return -1;
  const auto length = static_cast<Position>(needle_.size());
  for (; !leaf_.AtEnd(); NextLeaf()) {
    const TextView text = leaf_->text.View();
    const auto next = [&] {
      return text.Visit([this](auto own) { return NextCandidate(own, at_); });
    };
    for (; (at_ = next()) < text.Size(); ++at_) {
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

template <class Unit>
MatchScanner::NeedlePrefix<Unit> MatchScanner::OpeningIn() const {
  const auto cases = [this](char16_t c) -> Cases<Unit> {
    const char16_t capital = options_.matchCase ? c : ToUpper(c);
    if constexpr (sizeof(Unit) == 1) {
      return {static_cast<char>(ByteOf1252(c)), static_cast<char>(ByteOf1252(capital))};
    } else {
      return {c, capital};
    }
  };
  return {cases(needle_.front()), cases(needle_[needle_.size() > 1])};
}

template <class Unit>
std::size_t MatchScanner::NextCandidate(std::basic_string_view<Unit> text, std::size_t at) const {
  const auto opening = std::get<NeedlePrefix<Unit>>(openings_);
  using Hits = std::make_unsigned_t<Unit>;  // as wide as the text, so that both vectorise alike
  const Unit* units = text.data();
  const auto begins = [=](std::size_t i) { return Hits{opening.first.Has(units[i])}; };
  if (needle_.size() == 1 || at >= text.size()) return FirstHit(at, text.size(), begins);
  // The unit after the leaf's last one is in the next leaf.
  const std::size_t last = text.size() - 1;
  at = FirstHit(at, last, [=](std::size_t i) {
    return static_cast<Hits>(begins(i) & Hits{opening.second.Has(units[i + 1])});
  });
  return at == last && begins(last) == 0 ? text.size() : at;
}

bool MatchScanner::MatchesAt(std::size_t at) const {
  TextView text = leaf_->text.View();
  const char16_t before = at == 0 ? previous_ : text[at - 1];
  std::u16string_view rest = needle_;
  text.RemovePrefix(at);
  for (LeafCursor leaf = leaf_;;) {
    const std::size_t count = std::min(text.Size(), rest.size());
    if (!Same(text.Part(0, count), rest.substr(0, count))) return false;
    text.RemovePrefix(count);
    rest.remove_prefix(count);
    if (rest.empty() && !options_.wholeWord) return true;
    if (text.Empty()) {
      leaf.Next();
      if (!leaf.AtEnd()) text = leaf->text.View();
    }
    if (rest.empty()) {
      return !IsWordCharacter(before) && (text.Empty() || !IsWordCharacter(text.Front()));
    }
    if (text.Empty()) return false;
  }
}

bool MatchScanner::Same(TextView text, std::u16string_view part) const {
  for (std::size_t i = 0; i < part.size(); ++i)
    if (Fold(text[i]) != part[i]) return false;
  return true;
}

void MatchScanner::NextLeaf() {
  const TextView text = leaf_->text.View();
  previous_ = text.Back();
  at_ -= std::min(at_, text.Size());
  leaf_.Next();
}

}  // namespace lumenote
