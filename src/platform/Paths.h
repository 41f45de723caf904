// Taking drive-letter paths apart, as text: nothing here but `EnTouteCasse` looks at the disk.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

class Files;

/// Whether a text counts as a path rather than a note: over 7 characters, with ":\" second.
bool IsDrivePath(std::u16string_view text);
/// The path without its last component and the separator before it; a drive root keeps its
/// backslash. Empty for a text without a backslash.
std::u16string ParentFolder(std::u16string_view path);
/// The part after the last backslash, or all of a text without one.
std::u16string FileName(std::u16string_view path);
/// The file name up to its last point.
std::u16string BaseName(std::u16string_view path);
/// Makes every doubled backslash single, in one pass.
std::u16string FoldBackslashes(std::u16string_view path);

/// Replaces the last three characters by `extension`; empty if the path is shorter.
std::u16string ChmExts(std::u16string_view path, std::u16string_view extension);
/// The existing files that match `path` with its last three characters in any letter case, the
/// exact name first; each file once, though the system may find it under several spellings.
std::vector<std::u16string> EnTouteCasse(const Files& files, std::u16string_view path);

}  // namespace lumenote
