// Regular expressions of the standard library, without its deep recursion.
#include "pilot/language/Pattern.h"

#include <regex>
#include <string>

#include "base/Strings.h"
#include "pilot/language/ScriptError.h"

namespace lumenote {
namespace {

using Syntax = std::regex_constants::syntax_option_type;

/// A matcher that does not recurse for each character; it has no back-references.
#ifdef __GLIBCXX__
constexpr Syntax kFlat = std::regex::ECMAScript | std::regex_constants::__polynomial;
#else
constexpr Syntax kFlat = std::regex::ECMAScript;
#endif

/// A recursion depth that fits any stack.
constexpr std::size_t kLongestRecursion = 1000;

std::wstring Widen(std::string_view utf8) {
  const std::u16string units = FromUtf8(utf8);
  std::wstring wide;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const bool pair = sizeof(wchar_t) > 2 && IsHighSurrogate(units[i]) && i + 1 < units.size();
    if (pair) {
      const int high = units[i] - 0xD800;
      wide += static_cast<wchar_t>(0x10000 + (high << 10) + (units[++i] - 0xDC00));
    } else {
      wide += static_cast<wchar_t>(units[i]);
    }
  }
  return wide;
}

bool Search(const std::wstring& pattern, const std::wstring& line) {
  try {
    return std::regex_search(line, std::wregex(pattern, kFlat));
  } catch (const std::regex_error& error) {
    if (error.code() != std::regex_constants::error_complexity) throw;
  }
  if (line.size() > kLongestRecursion) throw ScriptError("line too long for a back-reference");
  return std::regex_search(line, std::wregex(pattern));
}

}  // namespace

bool Occurs(std::string_view regex, std::string_view line) {
  try {
    return Search(Widen(regex), Widen(line));
  } catch (const std::regex_error& error) {
    throw ScriptError(error.what());
  }
}

}  // namespace lumenote
