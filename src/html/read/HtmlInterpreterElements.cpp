// What single elements and their attributes do.
#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Twips.h"
#include "document/kept/LinkSource.h"
#include "document/kept/NumberingSource.h"
#include "document/kept/RowSource.h"
#include "html/read/CssValues.h"
#include "html/read/DataPicture.h"
#include "html/read/HtmlInterpreter.h"
#include "html/read/Styles.h"
#include "html/source/Ascii.h"
#include "html/words/LinkLook.h"
#include "html/words/ListNumbers.h"

namespace lumenote {
namespace {

using Kind = HtmlElement::Kind;
using Unit = CssLength::Unit;

/// The value of an attribute; null if there is none or it is empty.
const std::u16string* Attribute(const HtmlToken& tag, std::string_view name) {
  const std::u16string* const value = tag.Find(name);
  return value && !value->empty() ? value : nullptr;
}

/// The number of an attribute, clipped; `otherwise` if there is none.
int NumberOf(const HtmlToken& tag, std::string_view name, int otherwise) {
  constexpr double kMost = 100'000;
  const std::u16string* const value = tag.Find(name);
  if (!value) return otherwise;
  std::u16string_view text = TrimHtml(*value);
  const std::optional<double> number = TakeNumber(text);
  if (!number || text.starts_with(u'%')) return otherwise;
  return static_cast<int>(std::clamp(*number, -kMost, kMost));
}

/// <font size>: 1 to 7, or a step from 3.
CssLength SizeOf(std::u16string_view text) {
  constexpr int kTwips[] = {150, 200, 240, 270, 360, 480, 720};
  text = TrimHtml(text);
  const bool step = text.starts_with(u'+') || text.starts_with(u'-');
  const double size = TakeNumber(text).value_or(0) + (step ? 3 : 0);
  return {static_cast<double>(kTwips[static_cast<int>(std::clamp(size, 1.0, 7.0)) - 1])};
}

/// Whether a link leads somewhere: a script does not.
bool IsAddress(std::u16string_view text) {
  return !text.empty() && !StartsWithName(text, u"javascript:");
}

/// Word processors state the margins of their paragraphs in a style sheet.
void ReadClass(std::u16string_view name, LookChange& change) {
  if (name.starts_with(u"Mso")) change.above = change.below = CssLength();
  if (!name.starts_with(u"MsoListParagraph")) return;
  change.left = CssLength{720};
  change.mayBeItem = true;
}

char StyleOf(const HtmlToken& list) {
  const std::u16string* const type = Attribute(list, "type");
  const bool known = type && type->size() == 1 &&
                     std::u16string_view(u"1aAiI").find((*type)[0]) != std::u16string_view::npos;
  return known ? static_cast<char>((*type)[0]) : '1';
}

}  // namespace

// --- what elements change

LookChange HtmlInterpreter::ChangeOf(const HtmlElement& element, const HtmlToken& tag) {
  using E = HtmlElement;
  LookChange change;
  change.on = element.effects;
  if (element.traits & E::kUnderline) change.underline = Underline::Single;
  if (element.traits & E::kMonospace) ReadFontFamily(u"Courier New", formats_, change);
  if (element.traits & E::kPreserve) change.preserve = true;
  if (element.traits & E::kCentre) change.alignment = Alignment::Centre;
  if (element.size != 100) change.size = CssLength{element.size / 100.0, Unit::Size};
  if (element.indent != 0)
    (element.kind == Kind::List ? change.padding : change.left) =
        CssLength{static_cast<double>(element.indent)};
  if (element.kind == Kind::Row || element.kind == Kind::Cell)
    change.nesting = static_cast<std::uint8_t>(tables_.size());
  if (element.kind == Kind::Cell) change.kept = 0;
  ReadAttributes(element, tag, change);
  return change;
}

void HtmlInterpreter::ReadAttributes(const HtmlElement& element, const HtmlToken& tag,
                                     LookChange& change) {
  if (const auto* align = Attribute(tag, "align"); align && element.kind != Kind::Table)
    ReadAlignment(*align, change);
  if (const auto* direction = Attribute(tag, "dir"))
    change.rightToLeft = IsName(*direction, u"rtl");
  if (const auto* colour = Attribute(tag, "color")) change.colour = ReadColour(*colour);
  if (element.name == "font") {
    if (const auto* face = Attribute(tag, "face")) ReadFontFamily(*face, formats_, change);
    if (const auto* size = Attribute(tag, "size")) change.size = SizeOf(*size);
  }
  if (const auto* name = Attribute(tag, "class"); name && element.kind == Kind::Paragraph)
    ReadClass(*name, change);
  if (const int width = NumberOf(tag, "width", 0); width > 0)
    change.width = CssLength{width * kTwipsPerPixel};
  if (const auto* address = Attribute(tag, "href");
      address && element.kind == Kind::Link && IsAddress(TrimHtml(*address))) {
    const FieldId field = formats_.fields.Intern(
        {.opening = LinkOpening(TrimHtml(*address)), .serial = formats_.NextSerial()});
    change.kept = formats_.kept.Intern({.field = field});
    change.colour = kLinkColour;
    change.underline = Underline::Single;
  }
  if (const auto* style = Attribute(tag, "style")) ReadStyle(*style, formats_, change);
  if (change.tabs > 0 || element.traits & (HtmlElement::kEnd | HtmlElement::kHidden) ||
      tag.Find("hidden") || std::exchange(gap_, false) ||
      (element.kind == Kind::Row && NumberOf(tag, "height", 1) == 0))
    change.text = Look::Text::Hidden;
}

/// A list in another one has no margins.
int HtmlInterpreter::MarginOf(const HtmlElement& element) const {
  const auto isList = [](const Open& open) { return open.element->kind == Kind::List; };
  if (element.kind == Kind::List && std::ranges::count_if(open_, isList) > 1) return 0;
  return element.margin * look_.character.size / 10;
}

/// What the element does where it begins.
void HtmlInterpreter::Enter(const HtmlToken& tag, Open& open) {
  const LookChange& change = open.change;
  const Kind kind = open.element->kind;
  if (open.around.text == Look::Text::Hidden) return;
  if (change.tabs > 0) text_.Tabs(change.tabs, look_);
  if (open.element->traits & HtmlElement::kEnd) text_.Begin(look_);
  if (IsInline(kind) || IsHidden()) return;
  open.margin = MarginOf(*open.element);
  if (!change.above) text_.Space(open.margin);
  if (change.above) text_.SpaceBefore(change.above->Twips(look_.character));
  afterPre_ = open.element->name == "pre";
  held_ = change.mayBeItem && !change.item;
  if (kind == Kind::List) BeginList(tag, open);
  if (kind == Kind::Item) BeginItem(tag, open);
  if (kind == Kind::Table) tables_.push_back({.borders = NumberOf(tag, "border", 0) > 0});
  if (kind == Kind::Row) tables_.back().inRow = true;
  if (kind == Kind::Cell) BeginCell(tag, change);
}

// --- elements without content

void HtmlInterpreter::VoidElement(const HtmlToken& tag) {
  if (tag.name == "col") return Columns(tag);
  if (look_.text != Look::Text::Shown) return;
  if (tag.name == "hr") return Rule();
  BeforeContent();
  if (tag.name == "br")
    text_.LineBreak(look_);
  else
    Image(tag);
}

/// A picture that the source holds; of others, the text that stands for them.
void HtmlInterpreter::Image(const HtmlToken& tag) {
  const std::u16string* const address = Attribute(tag, "src");
  const auto width = static_cast<int>(NumberOf(tag, "width", 0) * kTwipsPerPixel);
  const auto height = static_cast<int>(NumberOf(tag, "height", 0) * kTwipsPerPixel);
  if (auto picture = address ? ReadDataPicture(*address, width, height) : std::nullopt)
    text_.Object({.kind = KeptItem::Kind::Picture, .source = std::move(*picture)}, look_);
  else if (const auto* text = Attribute(tag, "alt"))
    text_.Text(*text, look_);
}

/// An empty paragraph with a line below.
void HtmlInterpreter::Rule() {
  CloseKind(Kind::Paragraph);
  text_.End();
  Look look = look_;
  const auto word = [&](const char* name) { return KeptWord{.name = formats_.names.Intern(name)}; };
  look.paragraph.words = formats_.words.Chain({word("brdrb"), word("brdrs")});
  text_.Begin(look);
  text_.End();
}

// --- lists

void HtmlInterpreter::BeginList(const HtmlToken& tag, Open& list) {
  text_.Mark(std::nullopt);
  if (list.element->name == "ol") list.style = StyleOf(tag);
  list.next = list.start = NumberOf(tag, "start", 1);
}

ItemMarker HtmlInterpreter::Numbered(std::u16string number, char style, int start) {
  const NameId group = formats_.names.Intern(NumberingGroup(style, start));
  return {std::move(number),
          formats_.words.Chain({{.name = group, .kind = KeptWord::Kind::Numbering}})};
}

void HtmlInterpreter::BeginItem(const HtmlToken& tag, Open& item) {
  const auto isList = [](const HtmlElement& element) { return element.kind == Kind::List; };
  const std::size_t index = FindWithin(isList, false);
  if (index == kNone) return text_.Mark(ItemMarker());
  Open& list = open_[index];
  const int number = NumberOf(tag, "value", list.next);
  list.next = number + 1;
  if (list.change.unmarked || item.change.unmarked) return text_.Mark(std::nullopt);
  if (list.style == '*') return text_.Mark(ItemMarker());
  text_.Mark(Numbered(ListNumber(number, list.style), list.style, list.start));
}

/// A bullet, whatever its character, or a number.
void HtmlInterpreter::EndSpelledMarker() {
  std::u16string marker;
  std::ranges::copy_if(std::exchange(marker_, {}), std::back_inserter(marker), IsOrdinary);
  if (marker.empty()) return;
  const bool number =
      marker.ends_with(u'.') || marker.ends_with(u')') || std::ranges::any_of(marker, IsAsciiDigit);
  text_.Mark(number ? Numbered(std::move(marker), '1', 1) : ItemMarker());
}

/// The start of a paragraph that may be an item is held back: a gap behind it shows that it is a
/// bullet or number, anything else that it is text.
void HtmlInterpreter::HoldBack(const HtmlToken& tag) {
  const bool span = tag.kind == HtmlToken::Kind::Start && tag.name == "span";
  const std::u16string* const style = tag.Find("style");
  gap_ = span && style && style->starts_with(u"font:7.0pt");
  if (!gap_ && (!span || !marker_.empty())) return ReleaseHeld();
  held_ = !gap_;
  if (gap_) EndSpelledMarker();
}

void HtmlInterpreter::ReleaseHeld() {
  held_ = false;
  if (!marker_.empty()) Text(std::exchange(marker_, {}));
}

// --- tables

void HtmlInterpreter::Columns(const HtmlToken& tag) {
  constexpr int kMost = 1000;
  if (tables_.empty()) return;
  const LookChange change = ChangeOf(*FindElement("col"), tag);
  const int width = change.width ? change.width->Twips(look_.character) : 0;
  tables_.back().grid.AddColumns(std::clamp(NumberOf(tag, "span", 1), 1, kMost), width);
}

void HtmlInterpreter::BeginCell(const HtmlToken& tag, const LookChange& change) {
  constexpr int kMostColumns = 64;
  constexpr int kMostRows = 1000;
  Table& table = tables_.back();
  while (table.grid.AddGoingOn()) EmptyCell(open_.back().around);
  table.grid.Add({.columns = std::clamp(NumberOf(tag, "colspan", 1), 1, kMostColumns),
                  .rows = std::clamp(NumberOf(tag, "rowspan", 1), 1, kMostRows),
                  .width = change.width ? change.width->Twips(look_.character) : 0});
  table.inCell = true;
  text_.BeginCell();
}

void HtmlInterpreter::EmptyCell(const Look& look) {
  text_.BeginCell();
  text_.EndCell(look);
}

void HtmlInterpreter::EndRow() {
  Table& table = tables_.back();
  while (table.grid.AddGoingOn() || table.grid.AddGap()) EmptyCell(look_);
  const std::vector<RowCell> cells = table.grid.EndRow();
  KeptItem definition{.kind = KeptItem::Kind::Row, .source = RowDefinition(cells, table.borders)};
  for (const RowCell& cell : cells) definition.cells.push_back(cell.edge);
  text_.EndRow(std::move(definition), look_);
  table.inRow = false;
}

}  // namespace lumenote
