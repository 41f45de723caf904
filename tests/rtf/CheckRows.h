// Tables of sources and what becomes of them.
#pragma once
#include <functional>

#include "base/DataFile.h"
#include "base/Rows.h"

namespace lumenote {

/// Checks rows "source => result": what `result` makes of the source between `head` and `end`. "¶",
/// "⇥" and "↓" in a result are a break, a tab and a line break; "␍", "␊" and "⇥" in a source are
/// these bytes.
inline void CheckRows(std::string_view rows,
                      const std::function<std::string(const std::string&)>& result,
                      std::string_view head = "", std::string_view end = "") {
  constexpr std::string_view kSources[][2] = {{"␍", "\r"}, {"␊", "\n"}, {"⇥", "\t"}};
  constexpr std::string_view kResults[][2] = {
      {"\r\n", "\n"}, {"\n", "¶"}, {"\t", "⇥"}, {"\v", "↓"}};
  for (auto& [source, expected] : Rows<2>(rows, " => ")) {
    for (const auto& [sign, byte] : kSources) source = Replaced(source, sign, byte);
    std::string out = result(std::string(head).append(source).append(end));
    for (const auto& [bytes, sign] : kResults) out = Replaced(out, bytes, sign);
    EXPECT_EQ(out, expected) << source;
  }
}

}  // namespace lumenote
