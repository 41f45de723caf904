#include "html/write/Writer.h"

#include "html/write/HtmlBody.h"

namespace lumenote {

std::string WriteHtml(const Document& document) {
  return WriteHtml(document, 0, document.Length());
}

std::string WriteHtml(const Document& document, Position from, Position to) {
  std::string html = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n</head>\n<body>\n";
  HtmlBody(document, html).Write(document.SnapOutward(from, to));
  return html += "</body>\n</html>\n";
}

}  // namespace lumenote
