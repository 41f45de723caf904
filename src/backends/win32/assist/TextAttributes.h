// How a text looks, as UI Automation tells it.
#pragma once
#include <optional>
#include <string>
#include <variant>

#include "backends/win32/assist/UiaText.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

/// The value of an attribute; empty if it is not told.
using AttributeValue = std::variant<std::monostate, int, bool, double, std::u16string>;

AttributeValue ValueOf(const VARIANT& value);
/// The value that a range has throughout, or the system's sign that it differs or is not told.
HRESULT TellValue(const AccessibleText& text, Selection range, TEXTATTRIBUTEID id, VARIANT& out);

struct Attribute {
  TEXTATTRIBUTEID id = 0;
  AttributeValue value;
};
/// The first part of a range that has an attribute throughout; the last if `backward`.
std::optional<Selection> FindValue(const AccessibleText& text, Selection range,
                                   const Attribute& wanted, bool backward);

}  // namespace lumenote
