// The system's format of HTML between programs: a header of offsets before the source.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "backends/win32/system/System.h"

namespace lumenote {

/// The number of the format.
UINT HtmlFormat();
/// `html`, in UTF-8, behind a header; what its body holds is marked as the fragment to take.
std::string WithHtmlHeader(const std::string& html);
/// The fragment that a header tells, else all that it tells, else what begins with a tag; nothing
/// if there is no tag.
std::optional<std::string> WithoutHtmlHeader(std::string_view data);

}  // namespace lumenote
