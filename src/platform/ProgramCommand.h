// Splitting and quoting the command lines of programs.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// Splits a command line into words, the program first, by the rules of the drive-letter world:
/// spaces and tabs separate words outside quotes. In arguments an odd number of backslashes escapes
/// the quote that follows, and a pair of backslashes before a quote stands for one. In the quoted
/// program word a backslash is literal and a doubled quote stands for one.
std::vector<std::u16string> SplitCommandLine(std::u16string_view line);
/// Quotes a path, whatever it holds, as one word of a command line: as the program word, or as an
/// argument. Doubled backslashes become single. Only a path that contains quotes gets escapes: for
/// these and for backslashes before them.
std::u16string QuotedProgram(std::u16string_view path);
std::u16string Quoted(std::u16string_view path);

}  // namespace lumenote
