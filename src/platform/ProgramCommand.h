// Command lines of programs.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// The words of a command line, the program first, as programs of the drive-letter world split it:
/// blanks and tabs separate outside quotes; behind the program a quote is literal after an odd
/// number of backslashes, and of the backslashes before a quote every second one counts. In the
/// program's own word between quotes backslashes have no meaning and a doubled quote is literal.
std::vector<std::u16string> SplitCommandLine(std::u16string_view line);
/// A path between double quotes, its doubled backslashes made single, as one word of a command line
/// whatever it holds: at the start of the line and behind it. Only where the path has quotes itself
/// are these, and backslashes before a quote, escaped.
std::u16string QuotedProgram(std::u16string_view path);
std::u16string Quoted(std::u16string_view path);

}  // namespace lumenote
