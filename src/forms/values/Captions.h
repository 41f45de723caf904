// Captions as assistive programs read them.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// A caption without the marks of mnemonics; "&&" is an ampersand.
std::u16string WithoutMnemonic(std::u16string_view caption);

}  // namespace lumenote
