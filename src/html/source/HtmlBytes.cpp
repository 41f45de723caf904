#include "html/source/HtmlBytes.h"

#include <algorithm>

#include "base/TextEncoding.h"
#include "base/Windows1252.h"
#include "base/codepages/CodePage.h"
#include "html/source/Ascii.h"
#include "html/source/Charsets.h"
#include "html/source/HtmlTokenizer.h"

namespace lumenote {
namespace {

constexpr std::size_t kStart = 1024;  // where a <meta> is looked for

/// The name in "text/html; charset=name".
std::u16string_view CharsetIn(std::u16string_view content) {
  constexpr std::u16string_view kName = u"charset=";
  while (!content.empty() && !StartsWithName(content, kName)) content.remove_prefix(1);
  if (content.empty()) return {};
  content.remove_prefix(kName.size());
  content.remove_prefix(std::min(content.find_first_not_of(u" \"'"), content.size()));
  return content.substr(0, content.find_first_of(u"; \"'"));
}

/// The encoding that the source states, in small letters; empty if it states none.
std::string StatedCharset(std::string_view bytes) {
  const std::u16string start = Decode1252(bytes.substr(0, kStart));
  HtmlTokenizer tokens(start);
  for (const HtmlToken* tag = &tokens.Next(); tag->kind != HtmlToken::Kind::Finish;
       tag = &tokens.Next()) {
    if (tag->kind != HtmlToken::Kind::Start || tag->name != "meta") continue;
    const std::u16string* const charset = tag->Find("charset");
    if (charset) return NameOf(TrimHtml(*charset));
    const std::u16string* const content = tag->Find("content");
    const std::u16string_view name = content ? CharsetIn(*content) : std::u16string_view();
    if (!name.empty()) return NameOf(name);
  }
  return {};
}

}  // namespace

std::u16string DecodeHtml(std::string_view bytes) {
  const TextEncoding encoding = DetectEncoding(bytes);
  const std::string_view mark = ByteOrderMark(encoding);
  const bool marked = !mark.empty() && bytes.starts_with(mark);
  const int page = marked ? 0 : PageOfCharset(StatedCharset(bytes));
  if (page == 0) return DecodeText(bytes, encoding);
  std::u16string text;
  DecodeCodePage(page, bytes, text);
  return text;
}

}  // namespace lumenote
