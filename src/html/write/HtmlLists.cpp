#include "html/write/HtmlLists.h"

#include "html/write/HtmlFormats.h"

namespace lumenote {

void HtmlLists::BeginItem(ListMark mark, std::int32_t left) {
  while (!open_.empty() && left < open_.back().left) End();
  if (!open_.empty() && left == open_.back().left && open_.back().style != mark.style) End();
  const bool goesOn = !open_.empty() && left == open_.back().left;
  if (goesOn)
    out_ += "</li>\n";
  else
    Begin(mark, left);
  Open& list = open_.back();
  out_ += "<li";
  if (mark.style != '*' && mark.number != list.next)
    out_ += " value=\"" + std::to_string(mark.number) + "\"";
  out_ += '>';
  list.next = mark.number + 1;
}

void HtmlLists::Begin(ListMark mark, std::int32_t left) {
  const std::int32_t around = open_.empty() ? 0 : open_.back().left;
  std::string style = "margin:0pt;";
  DeclareLength("padding-left", left - around, style);
  if (!open_.empty()) out_ += '\n';
  out_ += mark.style == '*' ? "<ul" : "<ol";
  if (mark.style != '*') out_ += std::string(" type=\"") + mark.style + "\"";
  if (mark.style != '*' && mark.number != 1)
    out_ += " start=\"" + std::to_string(mark.number) + "\"";
  out_ += " style=\"" + style + "\">\n";
  open_.push_back({mark.style, left, mark.number});
}

void HtmlLists::End() {
  out_ += open_.back().style == '*' ? "</li>\n</ul>\n" : "</li>\n</ol>\n";
  open_.pop_back();
}

void HtmlLists::Close() {
  while (!open_.empty()) End();
}

}  // namespace lumenote
