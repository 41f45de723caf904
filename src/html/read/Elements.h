// The elements that the reader knows: a row in Elements.cpp makes one read.
#pragma once
#include <cstdint>
#include <string_view>

namespace lumenote {

struct HtmlElement {
  enum class Kind : std::uint8_t {
    Inline,
    Formatting,  // the same, but it goes on behind the block that it was opened in
    Link,
    Block,
    Paragraph,
    Heading,
    List,
    Item,
    Term,  // <dt> or <dd>
    Table,
    Row,
    Cell,
    Void,     // <br>, <hr>, <img>: without content
    Skipped,  // its content is not shown
  };
  enum Trait : std::uint8_t {
    kUnderline = 1,
    kMonospace = 2,
    kPreserve = 4,  // blanks and line ends count
    kCentre = 8,
    kEnd = 16,     // of a word processor's paragraph: without content
    kHidden = 32,  // for programs, or in place of what this reader shows
  };
  std::string_view name;
  Kind kind = Kind::Inline;
  std::uint16_t effects = 0;  // CharEffect
  std::uint8_t traits = 0;
  std::uint16_t size = 100;  // per cent of the size around it
  std::uint16_t margin = 0;  // above and below, per cent of its size
  std::int16_t indent = 0;   // twips, on the left
};

constexpr bool IsInline(HtmlElement::Kind kind) { return kind <= HtmlElement::Kind::Link; }

/// Null for an unknown element, whose tags are skipped.
const HtmlElement* FindElement(std::string_view name);

}  // namespace lumenote
