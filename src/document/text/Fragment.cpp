#include "document/text/Fragment.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"

namespace lumenote {

const ParaId* FragmentBuilder::Append(TextView text, CharId format, const ParaId* marks) {
  while (!text.Empty()) {
    FlushIfFull();
    std::size_t count = std::min(text.Size(), static_cast<std::size_t>(kFilled - size_));
    if (count < text.Size() && text[count - 1] == u'\r') ++count;
    const TextView piece = text.Part(0, count);
    if (!wide_ && !piece.CopyTo(bytes_ + size_)) Widen();
    if (wide_) piece.CopyTo(units_ + size_);
    Commit(static_cast<int>(count), format);
    if (marks != nullptr) {
      const Position breaks = CountBreaks(piece);
      marks_.insert(marks_.end(), marks, marks + breaks);
      marks += breaks;
    }
    text.RemovePrefix(count);
  }
  return marks;
}

void FragmentBuilder::Append(const LeafPointer& leaf) {
  if (size_ == 0 || size_ >= Leaf::kCapacity / 2) {
    Flush();
    leaves_.Add(leaf);
    return;
  }
  TextView text = leaf->text.View();
  const ParaId* marks = leaf->marks.data();
  for (Run run : leaf->runs) {
    marks = Append(text.Part(0, run.length), run.format, marks);
    text.RemovePrefix(run.length);
  }
}

std::span<char> FragmentBuilder::ByteRoom() {
  FlushIfFull();
  return {bytes_ + size_, bytes_ + (wide_ ? size_ : kFilled)};
}

std::span<char16_t> FragmentBuilder::UnitRoom() {
  FlushIfFull();
  if (!wide_) Widen();
  return {units_ + size_, units_ + kFilled};
}

void FragmentBuilder::Commit(int count, CharId format) {
  runs_.Append(count, format);
  size_ += count;
}

Fragment FragmentBuilder::Finish() {
  if (size_ > 0) AddLeaf(std::exchange(runs_, {}), std::exchange(marks_, {}));
  return {std::exchange(leaves_, {}), std::nullopt};
}

TextView FragmentBuilder::Gathered() const {
  const auto size = static_cast<std::size_t>(size_);
  if (wide_) return std::u16string_view(units_, size);
  return TextView(std::string_view(bytes_, size));
}

void FragmentBuilder::Widen() {
  Gathered().CopyTo(units_);
  wide_ = true;
}

void FragmentBuilder::FlushIfFull() {
  if (size_ < kFull) return;
  const char16_t last = Gathered().Back();
  if (!IsHighSurrogate(last)) return Flush();
  const CharId format = runs_.FormatAt(size_ - 1);
  runs_ = runs_.Part(0, --size_);
  Flush();
  Append(std::u16string_view(&last, 1), format);
}

void FragmentBuilder::Flush() {
  if (size_ == 0) return;
  AddLeaf(runs_, marks_);
  runs_.Clear();
  marks_.clear();
}

void FragmentBuilder::AddLeaf(Runs runs, std::vector<ParaId> marks) {
  leaves_.Add(
      std::make_shared<Leaf>(Leaf{LeafText(Gathered()), std::move(runs), std::move(marks)}));
  size_ = 0;
  wide_ = false;
}

Fragment PlainFragment(std::u16string_view text, CharId format, ParaId paragraph) {
  FragmentBuilder builder;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
    builder.Append(text.substr(0, end), format);
    text.remove_prefix(end);
    if (text.empty()) break;
    builder.AppendBreak(format, paragraph);
    text.remove_prefix(text.starts_with(u"\r\n") ? 2 : 1);
  }
  return builder.Finish();
}

}  // namespace lumenote
