// The fields of the current paragraph style by name.
#include <array>
#include <string>

#include "base/Numbers.h"
#include "format/StyleStore.h"
#include "forms/values/Members.h"
#include "pilot/context/Objects.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

struct StyleNumber {
  std::string_view name;
  std::int32_t StyleRecord::*field;
};

constexpr std::array<StyleNumber, 8> kNumbers{{
    {"RightIndent", &StyleRecord::RightIndent},
    {"LeftIndent", &StyleRecord::LeftIndent},
    {"HangingIndent", &StyleRecord::HangingIndent},
    {"LeftFront", &StyleRecord::LeftFront},
    {"SpaceBefore", &StyleRecord::SpaceBefore},
    {"SpaceAfter", &StyleRecord::SpaceAfter},
    {"LineSpacing", &StyleRecord::LineSpacing},
    {"Alignment", &StyleRecord::Alignment},
}};

/// Passes the field of that name to one of the two functions, by its type.
template <class OfNumber, class OfText>
auto WithField(std::string_view name, OfNumber ofNumber, OfText ofText) {
  for (const StyleNumber& number : kNumbers)
    if (number.name == name) return ofNumber(CurrentStyle.*number.field);
  if (name == "StyleRightMargin") return ofNumber(StyleRightMargin);
  if (name == "FontName") return ofText(CurrentStyle.FontName);
  if (name == "FontSize") return ofText(CurrentStyle.FontSize);
  throw ScriptError("unknown style value " + std::string(name));
}

}  // namespace

Value ReadStyle(std::string_view name) {
  const auto read = [](const auto& field) { return Value(field); };
  return WithField(name, read, read);
}

void WriteStyle(std::string_view name, const Value& value) {
  WithField(
      name, [&](std::int32_t& field) { field = ToInt32(NumberOf(value)); },
      [&](std::u16string& field) { field = TextOf(value); });
}

}  // namespace lumenote
