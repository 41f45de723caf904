#include "html/read/Elements.h"

#include <algorithm>
#include <iterator>

#include "document/formats/Formats.h"

namespace lumenote {
namespace {

using E = HtmlElement;
using Kind = E::Kind;

constexpr std::int16_t kListIndent = 600;  // twips: 40 pixels, as in browsers

// By name. Sizes and margins are those that the standard gives to screens.
constexpr HtmlElement kElements[] = {
    {"a", Kind::Link},
    {"address", Kind::Block, kItalic},
    {"annotation", Kind::Inline, 0, E::kHidden},
    {"article", Kind::Block},
    {"aside", Kind::Block},
    {"audio", Kind::Inline, 0, E::kHidden},
    {"b", Kind::Formatting, kBold},
    {.name = "big", .kind = Kind::Formatting, .size = 120},
    {.name = "blockquote", .kind = Kind::Block, .margin = 100, .indent = kListIndent},
    {"br", Kind::Void},
    {"canvas", Kind::Inline, 0, E::kHidden},
    {"caption", Kind::Block, 0, E::kCentre},
    {"center", Kind::Block, 0, E::kCentre},
    {"cite", Kind::Inline, kItalic},
    {"code", Kind::Formatting, 0, E::kMonospace},
    {"col", Kind::Void},
    {"datalist", Kind::Inline, 0, E::kHidden},
    {.name = "dd", .kind = Kind::Term, .indent = kListIndent},
    {"del", Kind::Inline, kStrike},
    {"details", Kind::Block},
    {"dfn", Kind::Inline, kItalic},
    {.name = "dir", .kind = Kind::List, .margin = 100, .indent = kListIndent},
    {"div", Kind::Block},
    {.name = "dl", .kind = Kind::Block, .margin = 100},
    {"dt", Kind::Term},
    {"em", Kind::Formatting, kItalic},
    {"fieldset", Kind::Block},
    {"figcaption", Kind::Block},
    {.name = "figure", .kind = Kind::Block, .margin = 100, .indent = kListIndent},
    {"font", Kind::Formatting},
    {"footer", Kind::Block},
    {"form", Kind::Block},
    {.name = "h1", .kind = Kind::Heading, .effects = kBold, .size = 200, .margin = 67},
    {.name = "h2", .kind = Kind::Heading, .effects = kBold, .size = 150, .margin = 83},
    {.name = "h3", .kind = Kind::Heading, .effects = kBold, .size = 117, .margin = 100},
    {.name = "h4", .kind = Kind::Heading, .effects = kBold, .margin = 133},
    {.name = "h5", .kind = Kind::Heading, .effects = kBold, .size = 83, .margin = 167},
    {.name = "h6", .kind = Kind::Heading, .effects = kBold, .size = 67, .margin = 233},
    {"header", Kind::Block},
    {"hgroup", Kind::Block},
    {"hr", Kind::Void},
    {"i", Kind::Formatting, kItalic},
    {"iframe", Kind::Skipped},
    {"img", Kind::Void},
    {"ins", Kind::Inline, 0, E::kUnderline},
    {"kbd", Kind::Inline, 0, E::kMonospace},
    {"legend", Kind::Block},
    {"li", Kind::Item},
    {"main", Kind::Block},
    {.name = "menu", .kind = Kind::List, .margin = 100, .indent = kListIndent},
    {"nav", Kind::Block},
    {"noembed", Kind::Skipped},
    {"noframes", Kind::Skipped},
    {"noscript", Kind::Inline, 0, E::kHidden},
    {"o:p", Kind::Inline, 0, E::kEnd},
    {.name = "ol", .kind = Kind::List, .margin = 100, .indent = kListIndent},
    {.name = "p", .kind = Kind::Paragraph, .margin = 100},
    {.name = "pre", .kind = Kind::Block, .traits = E::kMonospace | E::kPreserve, .margin = 100},
    {"rp", Kind::Inline, 0, E::kHidden},
    {"s", Kind::Formatting, kStrike},
    {"samp", Kind::Inline, 0, E::kMonospace},
    {"script", Kind::Skipped},
    {"section", Kind::Block},
    {"select", Kind::Inline, 0, E::kHidden},
    {.name = "small", .kind = Kind::Formatting, .size = 83},
    {"span", Kind::Inline},
    {"strike", Kind::Formatting, kStrike},
    {"strong", Kind::Formatting, kBold},
    {"style", Kind::Skipped},
    {"sub", Kind::Inline, kSubscript},
    {"summary", Kind::Block},
    {"sup", Kind::Inline, kSuperscript},
    {"svg", Kind::Inline, 0, E::kHidden},
    {"table", Kind::Table},
    {"td", Kind::Cell},
    {"template", Kind::Inline, 0, E::kHidden},
    {"textarea", Kind::Inline, 0, E::kMonospace | E::kPreserve},
    {"th", Kind::Cell, kBold, E::kCentre},
    {"title", Kind::Skipped},
    {"tr", Kind::Row},
    {"tt", Kind::Formatting, 0, E::kMonospace},
    {"u", Kind::Formatting, 0, E::kUnderline},
    {.name = "ul", .kind = Kind::List, .margin = 100, .indent = kListIndent},
    {"var", Kind::Inline, kItalic},
    {"video", Kind::Inline, 0, E::kHidden},
    {.name = "xmp", .kind = Kind::Block, .traits = E::kMonospace | E::kPreserve, .margin = 100},
};
static_assert(std::ranges::is_sorted(kElements, {}, &HtmlElement::name));

}  // namespace

const HtmlElement* FindElement(std::string_view name) {
  const auto* const found = std::ranges::lower_bound(kElements, name, {}, &HtmlElement::name);
  return found != std::end(kElements) && found->name == name ? found : nullptr;
}

}  // namespace lumenote
