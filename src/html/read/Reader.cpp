#include "html/read/Reader.h"

#include "html/read/HtmlInterpreter.h"

namespace lumenote {

Fragment ReadHtml(std::u16string_view html, FormatTables& formats, HtmlTarget target,
                  const CharFormat& base) {
  return HtmlInterpreter(html, formats, base).Read(target);
}

}  // namespace lumenote
