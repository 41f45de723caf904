// The character attributes of the selection.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "surface/editing/EditingCore.h"

namespace lumenote {

/// Reads the attributes common to the selection and writes them to the runs that differ or do not
/// state them. With an
/// empty selection they apply to the text typed next. Ranges and errors: see `RichTextSurface`.
class CharacterFormats {
 public:
  explicit CharacterFormats(EditingCore& core) : core_(core) {}

  std::optional<bool> Effect(CharEffect effect) const;
  void Effect(CharEffect effect, bool on);
  std::optional<bool> Underlined() const;
  void Underlined(bool on);
  std::optional<int> Offset() const;
  void Offset(int twips);
  std::optional<std::u16string> FontName() const;
  void FontName(std::u16string_view name);
  std::optional<float> FontSize() const;
  void FontSize(float points);
  std::optional<std::int32_t> TextColour() const;
  void TextColour(std::int32_t colour);

 private:
  template <class Get>
  auto Common(Get get) const -> std::optional<decltype(get(CharFormat{}))>;
  template <class Differs, class Set>
  void Apply(Differs differs, Set set);

  EditingCore& core_;
};

}  // namespace lumenote
