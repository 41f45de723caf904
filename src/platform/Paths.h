// Drive-letter paths taken apart, as plain text arithmetic.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

class Files;

/// Longer than 7 characters and ":\" as second and third: what counts as a path, not a note.
bool IsDrivePath(std::u16string_view text);
/// The path minus its last component and the separator before it; a drive root keeps its backslash.
/// Empty for a text without a backslash.
std::u16string ParentFolder(std::u16string_view path);
/// What follows the last backslash; all of a text without one.
std::u16string FileName(std::u16string_view path);
/// The file name without its extension, the part from its last point on.
std::u16string BaseName(std::u16string_view path);
/// Every doubled backslash made single, in one pass.
std::u16string FoldBackslashes(std::u16string_view path);

/// The path with its last three characters replaced by `extension`; empty when it is shorter.
std::u16string ChmExts(std::u16string_view path, std::u16string_view extension);
/// The files that there are under `path` with its last three characters in whatever letter case,
/// the exact name first. One file may be told more than once where the case of names means nothing.
std::vector<std::u16string> EnTouteCasse(const Files& files, std::u16string_view path);

}  // namespace lumenote
