// Character references: &amp;, &#8364;, &#x20AC;.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace lumenote {

/// Appends the character of the reference at the start of `source`, an ampersand, and returns the
/// reference's length; an ampersand that begins none stands for itself. In an attribute, a name
/// without its semicolon is none if a letter, a digit or "=" follows, as in an address.
std::size_t TakeReference(std::u16string_view source, bool inAttribute, std::u16string& out);

}  // namespace lumenote
