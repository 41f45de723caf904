// A piece of a document: what an edit removes or inserts, and how one is built.
#pragma once
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "document/text/LeafList.h"

namespace lumenote {

/// The hidden mark behind the last paragraph: its formats, which an empty note starts with, and
/// what goes with the note as a whole.
struct FinalMark {
  CharId character = 0;
  ParaId paragraph = 0;
  HeadId head = 0;  // of the note's source
  bool operator==(const FinalMark&) const = default;
};

/// Text with formats, sharing leaves with the document it came from. Its numbers are those of that
/// document's format tables.
struct Fragment {
  LeafList leaves;
  /// Set when the final mark is part of the edit; see `Document::Replace`.
  std::optional<FinalMark> mark;

  Position Length() const { return leaves.Length(); }
};

/// Fills a fragment from front to back: a leaf gathers here and joins the list when it is full. No
/// CR LF and no surrogate pair comes to lie in two leaves. More text than a list can hold raises
/// Overflow.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the text is written before it is read.
class FragmentBuilder {
 public:
  /// Appends text that holds no CR or LF.
  void Append(TextView text, CharId format) { Append(text, format, nullptr); }
  /// Appends a paragraph break that ends a paragraph of format `paragraph`.
  void AppendBreak(CharId format, ParaId paragraph) { Append(u"\r\n", format, &paragraph); }
  /// Appends text of one format; each CR LF in it takes its paragraph's format from `marks`.
  /// Returns the first of these that was not needed.
  const ParaId* Append(TextView text, CharId format, const ParaId* marks);
  /// Appends a leaf as it is, shared rather than copied unless that left a small leaf behind.
  void Append(const LeafPointer& leaf);

  /// For scanners: some room, for `kLeastRoom` units at least, to write text without CR or LF to;
  /// `Commit` keeps the first `count`. Text gathers as bytes of code page 1252 until there are
  /// units that have none: there is no room for bytes then.
  static constexpr int kLeastRoom = 32;
  std::span<char> ByteRoom();
  std::span<char16_t> UnitRoom();
  void Commit(int count, CharId format);

  Position Length() const { return leaves_.Length() + size_; }
  /// What was built, without a mark; the builder is empty again.
  Fragment Finish();

 private:
  /// Leaves keep a little room to type in; one is full when what it has beyond that is not enough
  /// for a scanner.
  static constexpr Position kTypingRoom = 32;
  static constexpr Position kFilled = Leaf::kCapacity - kTypingRoom;
  static constexpr Position kFull = kFilled - kLeastRoom;

  TextView Gathered() const;
  void Widen();
  void FlushIfFull();
  void Flush();
  void AddLeaf(Runs runs, std::vector<ParaId> marks);

  LeafList leaves_;
  Runs runs_;
  std::vector<ParaId> marks_;
  Position size_ = 0;
  bool wide_ = false;
  char bytes_[Leaf::kCapacity];
  char16_t units_[Leaf::kCapacity];
};

/// Plain text as a fragment: lone CR and LF become breaks, every character and paragraph takes the
/// given formats.
Fragment PlainFragment(std::u16string_view text, CharId format, ParaId paragraph);

}  // namespace lumenote
