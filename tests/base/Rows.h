// Tables of tests as text.
#pragma once
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "base/Strings.h"

namespace lumenote {

/// What stands between the separators.
inline std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  std::size_t end = text.find(separator);
  for (; end != text.npos; end = text.find(separator)) {
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end + separator.size());
  }
  parts.emplace_back(text);
  return parts;
}

inline std::string Replaced(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  for (const std::string& part : Split(text, from)) result.append(part).append(to);
  return result.substr(0, result.size() - to.size());
}

/// The rows of a table, one a line or separated by " ¦ "; a line that begins with four blanks goes
/// on with the one before, and one that begins with // says what the table is about. Fields are
/// separated by `between`; "" is an empty one, "␣" a blank.
template <std::size_t count>
std::vector<std::array<std::string, count>> Rows(std::string_view table,
                                                 std::string_view between = " | ") {
  std::vector<std::array<std::string, count>> rows;
  const std::string lines = Replaced(Replaced(table, "\n    ", ""), "\n", " ¦ ");
  for (const std::string& row : Split(lines, " ¦ ")) {
    if (row.empty() || row.starts_with("//")) continue;
    const std::vector<std::string> fields = Split(Replaced(row, "␣", " "), between);
    EXPECT_EQ(fields.size(), count) << row;
    rows.emplace_back();
    for (std::size_t i = 0; i < count; ++i)
      if (fields.at(i) != "\"\"") rows.back()[i] = fields[i];
  }
  EXPECT_FALSE(rows.empty());
  return rows;
}

/// The same in UTF-16.
template <std::size_t count>
std::vector<std::array<std::u16string, count>> Rows16(std::string_view table,
                                                      std::string_view between = " | ") {
  std::vector<std::array<std::u16string, count>> rows;
  for (const auto& row : Rows<count>(table, between))
    std::ranges::transform(row, rows.emplace_back().begin(), FromUtf8);
  return rows;
}

}  // namespace lumenote
