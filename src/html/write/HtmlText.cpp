#include "html/write/HtmlText.h"

#include <algorithm>

#include "base/Strings.h"
#include "document/kept/Kept.h"

namespace lumenote {
namespace {

constexpr std::string_view kNoBreakSpace = "&nbsp;";
constexpr std::string_view kTab = "<span style=\"mso-tab-count:1\">&nbsp;&nbsp;&nbsp;&nbsp;</span>";

/// The form of a character that has a meaning, else empty.
std::string_view EscapeOf(char16_t c) {
  switch (c) {
    case u'&':
      return "&amp;";
    case u'<':
      return "&lt;";
    case u'>':
      return "&gt;";
    case u'"':
      return "&quot;";
    case u'\u00A0':
      return kNoBreakSpace;
    case u'\t':
      return kTab;
    case u'\v':
      return "<br>\n";
    default:
      return {};
  }
}

/// Characters that HTML cannot hold, and those that stand for kept items.
bool IsDropped(char16_t c) { return c < u' ' || (c >= 0x7F && c < 0xA0) || c == kObjectCharacter; }

bool IsPlain(char16_t c) { return c != u' ' && EscapeOf(c).empty() && !IsDropped(c); }

/// Blanks that would collapse: several, or at the edge of a line.
void AppendBlanks(std::size_t count, bool atEdge, std::string& out) {
  if (count == 1 && !atEdge) return void(out += ' ');
  out += "<span style=\"mso-spacerun:yes\">";
  for (std::size_t i = atEdge ? 0 : 1; i < count; ++i) out += kNoBreakSpace;
  out += atEdge ? "</span>" : " </span>";
}

/// Whether a blank beside that place would collapse.
bool IsEdge(std::u16string_view paragraph, std::size_t at) {
  if (at >= paragraph.size()) return true;
  return paragraph[at] == u' ' || (paragraph[at] != u'\t' && IsDropped(paragraph[at]));
}

}  // namespace

void AppendHtmlText(std::u16string_view paragraph, std::size_t from, std::size_t to,
                    std::string& out) {
  const std::u16string_view part = paragraph.substr(0, to);
  while (from < to) {
    const std::u16string_view rest = part.substr(from);
    const auto count =
        static_cast<std::size_t>(std::ranges::find_if_not(rest, IsPlain) - rest.begin());
    const std::size_t blanks = std::min(rest.find_first_not_of(u' '), rest.size());
    if (count > 0) {
      out += ToUtf8(rest.substr(0, count));
      from += count;
    } else if (blanks > 0) {
      const bool atEdge =
          from == 0 || IsEdge(paragraph, from - 1) || IsEdge(paragraph, from + blanks);
      AppendBlanks(blanks, atEdge, out);
      from += blanks;
    } else {
      out += EscapeOf(rest.front());
      ++from;
    }
  }
}

void AppendHtmlValue(std::u16string_view value, std::string& out) {
  out += '"';
  for (; !value.empty(); value.remove_prefix(1)) {
    const auto count =
        static_cast<std::size_t>(std::ranges::find_if_not(value, IsPlain) - value.begin());
    out += ToUtf8(value.substr(0, count));
    value.remove_prefix(count);
    if (value.empty()) break;
    out += value.front() == u' ' ? " " : value.front() < u' ' ? "" : EscapeOf(value.front());
  }
  out += '"';
}

}  // namespace lumenote
