// Rules out searches: tells which texts a longer text cannot contain, in any letter case.
#pragma once
#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

namespace lumenote {

/// The runs of four characters of a text, case-folded. Replacements only add some, and they are
/// hashed: it may take a text for contained that is not, never the reverse, provided each change is
/// reported.
class TextIndex {
 public:
  explicit TextIndex(std::u16string text);

  /// False only if the text does not contain `part`. A part shorter than a run is never ruled out.
  bool MayContain(std::u16string_view part) const;
  /// The text's `length` characters from `at` became `replacement`.
  void Replaced(std::size_t at, std::size_t length, std::u16string_view replacement);
  /// Of the text as it should be now.
  std::size_t Length() const { return text_.size(); }

 private:
  /// Adds the runs that begin in `from`..`to` - 1.
  void Add(std::size_t from, std::size_t to);

  std::u16string text_;
  std::bitset<1 << 18> runs_;
};

}  // namespace lumenote
