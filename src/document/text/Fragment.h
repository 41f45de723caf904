// A piece of a document, as inserted or removed by an edit, and its builder.
#pragma once
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "document/text/LeafList.h"

namespace lumenote {

/// The hidden mark after the last paragraph. It carries that paragraph's formats, which an empty
/// note starts with, and what belongs to the note as a whole.
struct FinalMark {
  CharId character = 0;
  ParaId paragraph = 0;
  HeadId head = 0;  // of the note's source
  bool operator==(const FinalMark&) const = default;
};

/// Formatted text that shares leaves with its document. Format numbers refer to that document's
/// format tables.
struct Fragment {
  LeafList leaves;
  /// Set if the edit includes the final mark; see `Document::Replace`.
  std::optional<FinalMark> mark;

  Position Length() const { return leaves.Length(); }
};

/// Builds a fragment front to back; a leaf fills up here, then joins the list. Never splits a CR LF
/// or a surrogate pair between leaves. Raises Overflow when a list cannot hold the text.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the text is written before it is read.
class FragmentBuilder {
 public:
  /// Appends text without CR or LF.
  void Append(TextView text, CharId format) { Append(text, format, nullptr); }
  /// Appends a break that ends a paragraph of format `paragraph`.
  void AppendBreak(CharId format, ParaId paragraph) { Append(u"\r\n", format, &paragraph); }
  /// Appends text of one character format; each CR LF takes its paragraph format from `marks`.
  /// Returns the first unused mark.
  const ParaId* Append(TextView text, CharId format, const ParaId* marks);
  /// Appends a whole leaf, shared unless that would leave a small leaf before it.
  void Append(const LeafPointer& leaf);

  /// For scanners: buffer space for at least `kMinRoom` units of text without CR or LF; `Commit`
  /// keeps the first `count`. Text is collected as bytes of code page 1252 until a unit has none;
  /// after that no byte space is offered.
  static constexpr int kMinRoom = 32;
  std::span<char> ByteRoom();
  std::span<char16_t> UnitRoom();
  void Commit(int count, CharId format);

  Position Length() const { return leaves_.Length() + size_; }
  /// Returns the fragment, without a mark, and resets the builder.
  Fragment Finish();

 private:
  /// Leaves keep a little space for typing. A leaf is full if what it has beyond that is too small
  /// for a scanner.
  static constexpr Position kTypingRoom = 32;
  static constexpr Position kFilled = Leaf::kCapacity - kTypingRoom;
  static constexpr Position kFull = kFilled - kMinRoom;

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

/// Plain text as a fragment: lone CR and LF become breaks; all text and paragraphs get the given
/// formats.
Fragment PlainFragment(std::u16string_view text, CharId format, ParaId paragraph);

}  // namespace lumenote
