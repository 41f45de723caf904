// Documents out of HTML.
#pragma once
#include <string>
#include <string_view>

#include "document/Document.h"
#include "html/read/Reader.h"

namespace lumenote {

Document ReadPage(std::string_view html, HtmlTarget target = HtmlTarget::Document);

/// Each run as "text:format", each paragraph's format after its "¶"; what is as in the base is not
/// named, ends of fields are.
std::string FormatsOf(const Document& document);

}  // namespace lumenote
