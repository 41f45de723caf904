// Rewrites RTF source with single spacing, 11 points and Times New Roman.
#pragma once
#include <string>

namespace lumenote {

/// Returns `rtf` with every line spacing single (\sl240), every font size 11 points (\fs22), and
/// every font of character set 0 in the font table named Times New Roman, in any letter case. The
/// argument keeps the "$$" prepended to it; the result begins with it, too, and stops two
/// characters short of the source. A control word directly after a rewritten line spacing is not
/// examined. Raises Overflow for 32,767 characters or more.
std::u16string NormaliserEnteteRtf(std::u16string& rtf);

}  // namespace lumenote
