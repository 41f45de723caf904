// Changes formats over a range: maps each format once and copies each leaf at most once.
#include <algorithm>
#include <vector>

#include "document/Document.h"

namespace lumenote {
namespace {

/// A map between format numbers that calls its function once per format; the identity without one.
class MemoMap {
 public:
  MemoMap(const std::function<std::uint32_t(std::uint32_t)>& map, std::uint32_t formats)
      : map_(map), known_(map ? formats : 0, kUnknown) {}

  std::uint32_t operator()(std::uint32_t format) {
    if (!map_) return format;
    std::uint32_t& known = known_[format];
    if (known == kUnknown) known = map_(format);
    return known;
  }
  bool Changes(std::uint32_t format) { return (*this)(format) != format; }

 private:
  static constexpr std::uint32_t kUnknown = 0xFFFFFFFF;

  const std::function<std::uint32_t(std::uint32_t)>& map_;
  std::vector<std::uint32_t> known_;
};

/// The leaf with its formats mapped, or the leaf itself if that changes none.
LeafPointer MapLeaf(const LeafPointer& leaf, MemoMap& characters, MemoMap& paragraphs) {
  const auto changesRun = [&](Run run) { return characters.Changes(run.format); };
  const auto changesMark = [&](ParaId mark) { return paragraphs.Changes(mark); };
  if (std::none_of(leaf->runs.begin(), leaf->runs.end(), changesRun) &&
      std::none_of(leaf->marks.begin(), leaf->marks.end(), changesMark)) {
    return leaf;
  }
  std::vector<ParaId> marks(leaf->marks.size());
  std::transform(leaf->marks.begin(), leaf->marks.end(), marks.begin(), std::ref(paragraphs));
  return std::make_shared<Leaf>(
      Leaf{leaf->text, leaf->runs.Mapped(std::ref(characters)), std::move(marks)});
}

}  // namespace

std::optional<Fragment> Document::MapFormats(Position from, Position to, const CharMap& characters,
                                             const ParaMap& paragraphs, bool withMark) const {
  MemoMap characterMap(characters, formats_->characters.Size());
  MemoMap paragraphMap(paragraphs, formats_->paragraphs.Size());
  const Fragment source = Copy(from, to);
  Fragment mapped;
  bool changed = false;
  for (LeafCursor leaf = source.leaves.CursorAt(0); !leaf.AtEnd(); leaf.Next()) {
    LeafPointer result = MapLeaf(leaf.Pointer(), characterMap, paragraphMap);
    changed |= result != leaf.Pointer();
    mapped.leaves.Add(std::move(result));
  }
  if (withMark) {
    mapped.mark = mark_;
    mapped.mark->character = characterMap(mark_.character);
    mapped.mark->paragraph = paragraphMap(mark_.paragraph);
    changed |= *mapped.mark != mark_;
  }
  if (!changed) return std::nullopt;
  return mapped;
}

}  // namespace lumenote
