// The paragraph attributes of the selection.
#pragma once
#include <optional>

#include "platform/RichTextSurface.h"
#include "surface/editing/EditingCore.h"

namespace lumenote {

/// Reads the attributes common to the paragraphs that the selection touches, in tables those of its
/// cells, and writes them to those that differ. Values and errors: see `RichTextSurface`.
class ParagraphFormats {
 public:
  explicit ParagraphFormats(EditingCore& core) : core_(core) {}

  std::optional<bool> Bullet() const;
  void Bullet(UndoKind kind, bool on);
  std::optional<int> AlignmentCode() const;
  void AlignmentCode(int code);
  void Align(Alignment alignment);
  /// One of the indents, in twips.
  std::optional<int> Indent(std::int32_t ParaFormat::*indent) const;
  void Indent(std::int32_t ParaFormat::*indent, int twips);

  ParagraphRecord Record(unsigned mask) const;
  void Record(const ParagraphRecord& record);

 private:
  template <class Get>
  auto Common(Get get) const -> std::optional<decltype(get(ParaFormat{}))>;
  template <class Set>
  void Apply(UndoKind kind, Set set);
  struct Enders {
    Position from = 0;
    Position to = 0;
    bool final = false;  // the final mark, too
  };
  Enders Touched() const;

  EditingCore& core_;
};

}  // namespace lumenote
