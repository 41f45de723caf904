#include "html/read/NoteText.h"

#include <algorithm>
#include <utility>

#include "html/source/Ascii.h"

namespace lumenote {
namespace {

constexpr int kHanging = 360;  // twips between a marker and its text
constexpr char16_t kNoBreakSpace = u'\u00A0';

bool IsControl(char16_t c) { return c < u' ' || (c >= 0x7F && c < 0xA0); }

ParaFormat ParagraphOf(const Look& look) {
  ParaFormat format = look.paragraph;
  format.firstIndent = look.left + look.first;
  format.hangingIndent = -look.first;
  return format;
}

/// What stands beside a link does not look like one.
CharFormat OutsideOfLink(CharFormat character) {
  if (character.kept == 0) return character;
  character.kept = 0;
  character.colour = kAutoColour;
  character.underline = Underline::None;
  return character;
}

}  // namespace

bool IsOrdinary(char16_t c) {
  return c != u' ' && c != kNoBreakSpace && c != kObjectCharacter && !IsControl(c);
}

// --- characters

void NoteText::Text(std::u16string_view text, const Look& look) {
  while (!text.empty()) {
    const auto end = std::ranges::find_if_not(text, IsOrdinary);
    const std::u16string_view plain = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    if (plain.empty()) {
      if (!look.preserve || !text.starts_with(u"\r\n")) Special(text.front(), look);
      text.remove_prefix(1);
    } else {
      BeforeContent(look);
      Append(plain, look.character);
      text.remove_prefix(plain.size());
    }
  }
}

void NoteText::Special(char16_t unit, const Look& look) {
  const bool literal = unit == kNoBreakSpace || (look.spaces && unit == u' ') ||
                       (look.preserve && (unit == u' ' || unit == u'\t'));
  if (literal) {
    BeforeContent(look);
    Append(look.spaces ? u" " : std::u16string_view(&unit, 1), look.character);
  } else if (look.preserve && (unit == u'\n' || unit == u'\r')) {
    LineBreak(look);
  } else if (IsHtmlSpace(unit) && lineBegun_ && !blank_) {
    blank_ = look.character;
  }
}

void NoteText::LineBreak(const Look& look) {
  blank_.reset();
  if (lineBreak_) BeforeContent(look);
  Begin(look);
  lineBreak_ = look.character;
  lineBegun_ = false;
}

void NoteText::Object(KeptItem item, const Look& look) {
  BeforeContent(look);
  const ItemId self = formats_.items.Chain({std::move(item)});
  const CharFormat character = FormatOf(look.character);
  const FieldId field = formats_.kept[character.kept].field;
  builder_.Append(std::u16string_view(&kObjectCharacter, 1),
                  With(character, {.self = self, .field = field, .kind = Kept::Kind::Embedded}));
}

void NoteText::Tabs(int count, const Look& look) {
  if (count == 0) return;
  BeforeContent(look);
  Append(std::u16string(static_cast<std::size_t>(count), u'\t'), look.character);
}

/// Adds what was held back in the line.
void NoteText::BeforeContent(const Look& look) {
  Begin(look);
  if (lineBreak_) Append(u"\v", *std::exchange(lineBreak_, {}));
  if (blank_) Append(u" ", *std::exchange(blank_, {}));
  lineBegun_ = true;
}

CharFormat NoteText::FormatOf(CharFormat character) const {
  if (unlinked_) character.kept = 0;
  return character;
}

void NoteText::Append(std::u16string_view text, const CharFormat& character) {
  const CharFormat format = FormatOf(character);
  builder_.Append(text, formats_.characters.Intern(format));
  if (format.kept == 0) open_->character = format;  // what ends the paragraph is in no link
}

CharId NoteText::Plain(CharFormat format) {
  format.kept = 0;
  return formats_.characters.Intern(format);
}

CharId NoteText::With(CharFormat format, const Kept& kept) {
  format.kept = formats_.kept.Intern(kept);
  return formats_.characters.Intern(format);
}

// --- paragraphs

void NoteText::Begin(const Look& look) {
  if (open_) return;
  if (ended_) ended_->paragraph.spaceAfter = std::max(ended_->paragraph.spaceAfter, space_);
  Release();
  open_ = Ended{OutsideOfLink(look.character), ParagraphOf(look)};
  open_->paragraph.spaceBefore = before_.value_or(0);
  before_.reset();
  space_ = 0;
  ++paragraphs_;
  unlinked_ = !MayGoOn(look.character.kept);
  marked_ = marker_.has_value();
  if (marked_) PlaceMarker(open_->paragraph, look);
}

/// Whether another paragraph may begin in that link.
bool NoteText::MayGoOn(KeptId link) {
  if (std::exchange(link_, link) != link || link == 0) return true;
  return repeats_.Allow(formats_.fields[formats_.kept[link].field].opening.size());
}

void NoteText::PlaceMarker(ParaFormat& paragraph, const Look& look) {
  const ItemMarker marker = *std::exchange(marker_, {});
  if (look.first == 0) {
    paragraph.hangingIndent = std::clamp(look.left, 0, kHanging);
    paragraph.firstIndent = look.left - paragraph.hangingIndent;
  }
  paragraph.bullet = marker.number.empty() ? 1 : 0;
  if (marker.number.empty()) return;
  paragraph.words = marker.words;
  const FieldId field = formats_.fields.Intern({.opening = "{\\pntext",
                                                .serial = formats_.NextSerial(),
                                                .kind = KeptField::Kind::ListNumber});
  builder_.Append(marker.number + u'\t', With(OutsideOfLink(look.character), {.field = field}));
}

void NoteText::End() {
  blank_.reset();
  lineBreak_.reset();
  lineBegun_ = false;
  if (open_) ended_ = std::exchange(open_, {});
}

void NoteText::SpaceAfter(int twips) {
  if (ended_) ended_->paragraph.spaceAfter = std::max(ended_->paragraph.spaceAfter, twips);
}

void NoteText::Release() {
  if (const auto cell = std::exchange(cell_, {})) {
    const ParaId paragraph = formats_.paragraphs.Intern(cell->paragraph);
    const bool nested = cell->paragraph.nesting > 1;
    builder_.Append(u"\t",
                    With(cell->character, {.paragraph = paragraph,
                                           .kind = Kept::Kind::Cell,
                                           .nested = nested ? std::uint8_t{1} : std::uint8_t{0}}));
  }
  if (const auto ended = std::exchange(ended_, {}))
    builder_.AppendBreak(Plain(ended->character), formats_.paragraphs.Intern(ended->paragraph));
}

// --- tables

void NoteText::BeginCell() {
  End();
  Release();
  marker_.reset();
  space_ = 0;
  before_.reset();
}

void NoteText::EndCell(const Look& look) {
  End();
  cell_ = ended_ ? *std::exchange(ended_, {}) : Ended{look.character, ParagraphOf(look)};
  space_ = 0;
}

void NoteText::EndRow(KeptItem definition, const Look& look) {
  const auto last = std::exchange(cell_, {});
  if (!last) return;
  const ItemId self = formats_.items.Chain({std::move(definition)});
  ParaFormat format = last->paragraph;
  format.nesting = look.paragraph.nesting;
  const Kept row{.self = self,
                 .kind = Kept::Kind::Row,
                 .nested = format.nesting > 1 ? std::uint8_t{1} : std::uint8_t{0}};
  builder_.AppendBreak(With(last->character, row), formats_.paragraphs.Intern(format));
  ++paragraphs_;
  marked_ = false;
}

// --- the end

Fragment NoteText::FinishDocument(const Look& look) {
  End();
  const Ended last = ended_ ? *ended_ : Ended{look.character, ParagraphOf(look)};
  Fragment fragment = builder_.Finish();
  fragment.mark = FinalMark{.character = Plain(last.character),
                            .paragraph = formats_.paragraphs.Intern(last.paragraph)};
  return fragment;
}

Fragment NoteText::FinishSelection() {
  End();
  if (marked_ && paragraphs_ > 1) Release();
  return builder_.Finish();
}

}  // namespace lumenote
