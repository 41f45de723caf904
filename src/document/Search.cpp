#include "document/Search.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/Characters.h"
#include "base/Strings.h"
#include "document/MatchScanner.h"

namespace lumenote {
namespace {

/// Reads a list of leaves front to back, copying or skipping.
class LeafReader {
 public:
  LeafReader(const LeafList& leaves, Position from) : leaf_(leaves.CursorAt(from)) {
    Enter();
    SkipTo(from);
  }

  void CopyTo(Position to, FragmentBuilder& builder) {
    while (!leaf_.AtEnd() && Here() < to) {
      if (at_ == 0 && leaf_->Size() <= to - leaf_.Start()) {
        builder.Append(leaf_.Pointer());
        NextLeaf();
      } else {
        const TextView text = Piece(to);
        mark_ = builder.Append(text, run_->format, mark_);
        Advance(text);
      }
    }
  }
  void SkipTo(Position to) {
    while (!leaf_.AtEnd() && Here() < to) {
      const TextView text = Piece(to);
      mark_ += CountBreaks(text);
      Advance(text);
    }
  }
  /// Format of the next unit, which must exist.
  CharId Format() const { return run_->format; }

 private:
  Position Here() const { return leaf_.Start() + at_; }
  /// The rest of the current run, up to `to`.
  TextView Piece(Position to) const {
    return leaf_->Text(at_, std::min(runEnd_, to - leaf_.Start()));
  }
  void Advance(TextView piece) {
    at_ += static_cast<Position>(piece.Size());
    if (at_ < runEnd_) return;
    if (at_ == leaf_->Size()) return NextLeaf();
    runEnd_ += static_cast<Position>((++run_)->length);
  }
  void NextLeaf() {
    leaf_.Next();
    Enter();
  }
  void Enter() {
    if (leaf_.AtEnd()) return;
    at_ = 0;
    run_ = leaf_->runs.begin();
    runEnd_ = static_cast<Position>(run_->length);
    mark_ = leaf_->marks.data();
  }

  LeafCursor leaf_;
  Position at_ = 0;  // in the leaf
  std::vector<Run>::const_iterator run_;
  Position runEnd_ = 0;
  const ParaId* mark_ = nullptr;  // of the next break
};

bool OnePassWillDo(std::u16string_view needle, std::u16string_view replacement,
                   SearchOptions options) {
  constexpr std::u16string_view kEnds = u"\r\n\t";  // of lines, paragraphs and cells
  if (needle.find_first_of(kEnds) != needle.npos || replacement.find_first_of(kEnds) != needle.npos)
    return false;
  // A whole word has no other directly behind it.
  if (options.wholeWord && !IsWordCharacter(needle.front())) return false;
  const std::u16string sought = options.matchCase ? std::u16string(needle) : Lower(needle);
  const std::u16string typed = options.matchCase ? std::u16string(replacement) : Lower(replacement);
  // What is longer than the match is searched, too.
  return sought != typed && typed.find(sought.front(), sought.size()) == typed.npos;
}

}  // namespace

Position FindText(const Document& document, std::u16string_view needle, Position from, Position to,
                  SearchOptions options) {
  from = std::clamp(from, 0, document.Length());
  return MatchScanner(document.Leaves(), needle, options, from)
      .Next(std::min(to, document.Length()));
}

std::optional<Replacement> ReplaceAllText(const Document& document, std::u16string_view needle,
                                          std::u16string_view replacement, SearchOptions options,
                                          Position most, const TypedOver& typed) {
  if (needle.empty() || !OnePassWillDo(needle, replacement, options)) return std::nullopt;
  const auto length = static_cast<Position>(needle.size());
  const Position shorter = std::max(0, length - static_cast<Position>(replacement.size()));
  MatchScanner scanner(document.Leaves(), needle, options, 0);
  const auto next = [&] { return scanner.Next(document.Length()); };
  Replacement result;
  Position at = next();
  result.range.start = result.range.end = std::max(at, 0);
  LeafReader reader(document.Leaves(), result.range.start);
  FragmentBuilder builder;
  for (; at >= 0 && result.count < most; ++result.count, at = next()) {
    reader.CopyTo(at, builder);
    const std::optional<CharId> format = typed(reader.Format());
    if (!format) return std::nullopt;
    if (!replacement.empty()) builder.Append(replacement, *format, nullptr);
    result.range.end = at + length;
    reader.SkipTo(result.range.end);
    scanner.Skip(shorter);
  }
  result.fragment = builder.Finish();
  if (at >= 0) result.another = at + result.fragment.Length() - result.range.Length();
  return result;
}

}  // namespace lumenote
