// Command lines of programs.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// The words of a command line, the program first, as programs of the drive-letter world split it:
/// blanks and tabs separate outside quotes; behind the program a quote is literal after an odd
/// number of backslashes, and of the backslashes before a quote every second one counts.
std::vector<std::u16string> SplitCommandLine(std::u16string_view line);
/// `text` between double quotes.
std::u16string Quoted(std::u16string_view text);

}  // namespace lumenote
