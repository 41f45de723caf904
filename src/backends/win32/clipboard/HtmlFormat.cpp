#include "backends/win32/clipboard/HtmlFormat.h"

#include <algorithm>
#include <charconv>

namespace lumenote {

namespace {

constexpr std::string_view kFragmentStarts = "<!--StartFragment-->";
constexpr std::string_view kFragmentEnds = "<!--EndFragment-->";

/// "Name:" and ten digits, so that the header is as long whatever it says.
std::string Field(std::string_view name, std::size_t value) {
  constexpr std::size_t kDigits = 10;
  const std::string digits = std::to_string(value);
  return std::string(name) + ':' + std::string(kDigits - std::min(kDigits, digits.size()), '0') +
         digits + "\r\n";
}

std::string Header(std::size_t start, std::size_t end, std::size_t from, std::size_t to) {
  return "Version:0.9\r\n" + Field("StartHTML", start) + Field("EndHTML", end) +
         Field("StartFragment", from) + Field("EndFragment", to);
}

std::optional<std::size_t> NumberAfter(std::string_view header, std::string_view name) {
  const std::size_t at = header.find(name);
  if (at == header.npos) return std::nullopt;
  std::size_t value = 0;
  const char* const from = header.data() + at + name.size();
  const auto [end, error] = std::from_chars(from, header.data() + header.size(), value);
  return error == std::errc() && end != from ? std::optional(value) : std::nullopt;
}

std::optional<std::string_view> Between(std::string_view data, std::string_view header,
                                        std::string_view start, std::string_view end) {
  const auto from = NumberAfter(header, start);
  const auto to = NumberAfter(header, end);
  if (!from || !to || *from < header.size() || *from >= *to || *to > data.size())
    return std::nullopt;
  return data.substr(*from, *to - *from);
}

}  // namespace

UINT HtmlFormat() {
  static const UINT format = RegisterClipboardFormatW(L"HTML Format");
  return format;
}

std::string WithHtmlHeader(const std::string& html) {
  const std::size_t body = html.find("<body");
  const std::size_t opened = body == html.npos ? html.npos : html.find('>', body);
  const std::size_t from = opened == html.npos ? 0 : opened + 1;
  const std::size_t to = std::max(from, std::min(html.rfind("</body>"), html.size()));
  const std::string before = html.substr(0, from) + std::string(kFragmentStarts);
  const std::string fragment = html.substr(from, to - from);
  const std::string behind = std::string(kFragmentEnds) + html.substr(to);
  const std::size_t start = Header(0, 0, 0, 0).size();
  const std::size_t inside = start + before.size();
  const std::size_t ends = inside + fragment.size();
  return Header(start, ends + behind.size(), inside, ends) + before + fragment + behind;
}

std::optional<std::string> WithoutHtmlHeader(std::string_view data) {
  const std::size_t tag = data.find('<');
  if (tag == data.npos) return std::nullopt;
  const std::string_view header = data.substr(0, tag);
  if (const auto fragment = Between(data, header, "StartFragment:", "EndFragment:"))
    return std::string(*fragment);
  return std::string(Between(data, header, "StartHTML:", "EndHTML:").value_or(data.substr(tag)));
}

}  // namespace lumenote
