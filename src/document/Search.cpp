#include "document/Search.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/Strings.h"
#include "document/MatchScanner.h"

namespace lumenote {
namespace {

/// Reads a list of leaves front to back, copying or skipping.
class LeafReader {
 public:
  explicit LeafReader(const LeafList& leaves) : leaf_(leaves.CursorAt(0)) { Enter(); }

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

}  // namespace

Position FindText(const Document& document, std::u16string_view needle, Position from, Position to,
                  SearchOptions options) {
  from = std::clamp(from, 0, document.Length());
  return MatchScanner(document.Leaves(), needle, options, from)
      .Next(std::min(to, document.Length()));
}

Replacement ReplaceAllText(const Document& document, std::u16string_view needle,
                           std::u16string_view replacement, SearchOptions options) {
  const std::u16string text = WithCrLf(replacement);
  std::vector<ParaId> marks(static_cast<std::size_t>(CountBreaks(text)));
  MatchScanner scanner(document.Leaves(), needle, options, 0);
  LeafReader reader(document.Leaves());
  FragmentBuilder builder;
  Replacement result;
  const auto length = static_cast<Position>(needle.size());
  for (Position at; (at = scanner.Next(document.Length())) >= 0; ++result.count) {
    reader.CopyTo(at, builder);
    if (!marks.empty()) std::fill(marks.begin(), marks.end(), document.ParaFormatAt(at));
    builder.Append(text, reader.Format(), marks.data());
    reader.SkipTo(at + length);
  }
  reader.CopyTo(document.Length(), builder);
  result.whole = builder.Finish();
  return result;
}

}  // namespace lumenote
