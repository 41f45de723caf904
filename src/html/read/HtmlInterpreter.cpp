// The main loop: tags, text, and the stack of open elements.
#include "html/read/HtmlInterpreter.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "document/tables/CellParagraphs.h"
#include "html/source/Ascii.h"

namespace lumenote {
namespace {

using Kind = HtmlElement::Kind;

constexpr std::size_t kLongestMarker = 12;

bool IsOfTable(Kind kind) { return kind == Kind::Table || kind == Kind::Row || kind == Kind::Cell; }
/// Whether it goes on behind a block that ends before it.
bool GoesOn(Kind kind) { return kind == Kind::Formatting || kind == Kind::Link; }

bool IsBlank(std::u16string_view text) { return std::ranges::all_of(text, IsHtmlSpace); }

}  // namespace

HtmlInterpreter::HtmlInterpreter(std::u16string_view source, FormatTables& formats,
                                 const CharFormat& base)
    : tokens_(source), formats_(formats), text_(formats) {
  look_.character = base;
  look_.character.stated = 0;
}

Fragment HtmlInterpreter::Read(HtmlTarget target) {
  for (const HtmlToken* token = &tokens_.Next(); token->kind != HtmlToken::Kind::Finish;
       token = &tokens_.Next())
    Take(*token);
  if (held_) ReleaseHeld();
  if (!open_.empty()) Close(0);
  return target == HtmlTarget::Document ? text_.FinishDocument(look_) : text_.FinishSelection();
}

void HtmlInterpreter::Take(const HtmlToken& token) {
  if (token.kind == HtmlToken::Kind::Text) return Text(token.text);
  afterPre_ = skipping_ = false;
  if (held_) HoldBack(token);
  if (token.kind == HtmlToken::Kind::Start) return Start(token);
  End(token.name);
}

void HtmlInterpreter::Text(std::u16string_view text) {
  if (std::exchange(afterPre_, false)) {
    if (text.starts_with(u'\r')) text.remove_prefix(1);
    if (text.starts_with(u'\n')) text.remove_prefix(1);
  }
  if (skipping_ || IsHidden()) return;
  if (look_.text == Look::Text::Marker || held_) {
    marker_ += text;
    if (held_ && marker_.size() > kLongestMarker) ReleaseHeld();
    return;
  }
  if (!look_.preserve && IsBlank(text)) return text_.Text(text, look_);
  BeforeContent();
  text_.Text(text, look_);
}

/// Content of a table row outside its cells gets a cell.
void HtmlInterpreter::BeforeContent() {
  if (!tables_.empty() && tables_.back().inRow && !tables_.back().inCell) Imply("td");
}

/// Opens an element whose tag is missing.
void HtmlInterpreter::Imply(const char* name) {
  HtmlToken tag;
  tag.kind = HtmlToken::Kind::Start;
  tag.name = name;
  if (HasRoom()) Start(tag);
}

void HtmlInterpreter::Start(const HtmlToken& tag) {
  const HtmlElement* const element = FindElement(tag.name);
  if (!element) return;
  if (element->kind == Kind::Skipped) return void(skipping_ = true);
  if (element->kind == Kind::Void) return VoidElement(tag);
  const Kind kind = element->kind;
  if ((kind == Kind::Row || kind == Kind::Cell) && tables_.empty()) return;
  if (uncounted_ == 0) CloseImplied(*element);
  if (kind == Kind::Cell && !tables_.back().inRow && !IsHidden()) Imply("tr");
  const bool tooDeep = kind == Kind::Table && tables_.size() == kDeepestTable;
  const LookChange change = ChangeOf(*element, tag);
  if (!IsInline(kind) && !IsHidden() && change.text != Look::Text::Hidden) text_.End();
  if (!HasRoom() || tooDeep) return void(++uncounted_);
  Push({.element = element, .change = change});
  Enter(tag, open_.back());
}

void HtmlInterpreter::End(std::string_view name) {
  const HtmlElement* const element = FindElement(name);
  if (!element) return;
  if (name == "br") return text_.LineBreak(look_);
  if (element->kind >= Kind::Void) return;
  if (uncounted_ > 0) {
    if (!IsInline(element->kind)) text_.End();
    return void(--uncounted_);
  }
  const std::size_t index = Find(*element);
  if (index == kNone && element->kind == Kind::Paragraph) text_.End();
  if (index == kNone) return;
  if (IsInline(element->kind) && !(element->traits & HtmlElement::kHidden))
    Remove(index);
  else
    Close(index);
}

// --- the stack

void HtmlInterpreter::Push(Open open) {
  open.around = look_;
  open.begun = text_.Paragraphs();
  open.change.ApplyTo(look_);
  open_.push_back(open);
}

/// The innermost open element that passes the test, within the innermost cell or, through cells,
/// within the innermost table; `kNone` if there is none.
std::size_t HtmlInterpreter::FindWithin(const Test& test, bool throughCells) const {
  for (std::size_t i = open_.size(); i-- > 0;) {
    const Kind kind = open_[i].element->kind;
    if (test(*open_[i].element)) return i;
    if (kind == Kind::Table || (kind == Kind::Cell && !throughCells)) break;
  }
  return kNone;
}

/// The element that an end tag closes. That of a heading closes any heading.
std::size_t HtmlInterpreter::Find(const HtmlElement& element) const {
  const bool heading = element.kind == Kind::Heading;
  const auto same = [&](const HtmlElement& other) {
    return &other == &element || (heading && other.kind == Kind::Heading);
  };
  return FindWithin(same, IsOfTable(element.kind));
}

/// Closes an element with those in it.
void HtmlInterpreter::Close(std::size_t index) {
  std::vector<Open> left;
  const HtmlElement& closed = *open_[index].element;
  const bool keeps = !IsOfTable(closed.kind) && !(closed.traits & HtmlElement::kHidden);
  while (open_.size() > index) {
    const Open open = open_.back();
    open_.pop_back();
    if (!IsHidden()) text_.End();
    Leave(open);
    look_ = open.around;
    if (keeps && GoesOn(open.element->kind)) left.push_back(open);
  }
  for (auto open = left.rbegin(); open != left.rend(); ++open) Push(*open);
}

/// Closes an inline element, but not those in it.
void HtmlInterpreter::Remove(std::size_t index) {
  Leave(open_[index]);
  look_ = open_[index].around;
  open_.erase(open_.begin() + static_cast<std::ptrdiff_t>(index));
  for (std::size_t i = index; i < open_.size(); ++i) {
    open_[i].around = look_;
    open_[i].change.ApplyTo(look_);
  }
}

void HtmlInterpreter::CloseKind(Kind kind) {
  const auto same = [=](const HtmlElement& other) { return other.kind == kind; };
  const std::size_t index = FindWithin(same, IsOfTable(kind));
  if (index != kNone) Close(index);
}

/// Closes what the start of an element ends by itself.
void HtmlInterpreter::CloseImplied(const HtmlElement& element) {
  const Kind kind = element.kind;
  if (!IsInline(kind)) CloseKind(Kind::Paragraph);
  if (kind == Kind::Link) {
    const auto same = [&](const HtmlElement& other) { return &other == &element; };
    const std::size_t index = FindWithin(same, false);
    if (index != kNone) Remove(index);
  } else if (kind == Kind::Heading && !open_.empty() && open_.back().element->kind == kind) {
    Close(open_.size() - 1);
  } else if (kind == Kind::Item || kind == Kind::Term) {
    const auto ends = [=](const HtmlElement& other) {
      return other.kind == kind || other.kind == Kind::List;
    };
    const std::size_t index = FindWithin(ends, false);
    if (index != kNone && open_[index].element->kind == kind) Close(index);
  } else if (kind == Kind::Row || kind == Kind::Cell ||
             (kind == Kind::Table && !tables_.empty() && !tables_.back().inCell)) {
    CloseKind(kind);
  }
}

void HtmlInterpreter::Leave(const Open& open) {
  const LookChange& change = open.change;
  if (change.text == Look::Text::Marker) EndSpelledMarker();
  const Kind kind = open.element->kind;
  if (IsInline(kind) || IsHidden()) return;
  const bool begun = text_.Paragraphs() > open.begun;
  if (begun && change.below) text_.SpaceAfter(change.below->Twips(look_.character));
  if (!change.below) text_.Space(open.margin);
  if (change.item || change.mayBeItem) text_.Mark(std::nullopt);
  if (kind == Kind::Item && !begun) {
    text_.Begin(look_);
    text_.End();
  } else if (kind == Kind::Cell) {
    text_.EndCell(look_);
    tables_.back().inCell = false;
  } else if (kind == Kind::Row) {
    EndRow();
  } else if (kind == Kind::Table) {
    tables_.pop_back();
  }
}

}  // namespace lumenote
