// Text as HTML: escapes and white space.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace lumenote {

/// Appends a part of a paragraph to UTF-8 HTML. Browsers collapse blanks and have no tabs, so runs
/// of blanks and tabs are written as word processors do, with hints for the reader.
void AppendHtmlText(std::u16string_view paragraph, std::size_t from, std::size_t to,
                    std::string& out);
/// Appends the value of an attribute, in quotes.
void AppendHtmlValue(std::u16string_view value, std::string& out);

}  // namespace lumenote
