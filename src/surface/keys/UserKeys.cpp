#include "surface/keys/UserKeys.h"

#include <algorithm>
#include <iterator>

#include "base/Characters.h"
#include "document/tables/TableRow.h"
#include "surface/keys/CellKeys.h"
#include "surface/keys/Words.h"

namespace lumenote {

namespace {

constexpr KeyStroke Plain(KeyName name) { return {.name = name}; }
constexpr KeyStroke Shift(KeyName name) { return {.name = name, .shift = true}; }
constexpr KeyStroke Ctrl(KeyName name) { return {.name = name, .control = true}; }
constexpr KeyStroke Ctrl(char16_t letter) { return {.character = letter, .control = true}; }
constexpr KeyStroke CtrlShift(char16_t letter) {
  return {.character = letter, .shift = true, .control = true};
}

bool IsPlainCharacter(const KeyStroke& key) {
  return key.name == KeyName::Character && !key.control && !key.alt;
}

}  // namespace

const UserKeys::Command UserKeys::kCommands[] = {
    {Plain(KeyName::BackSpace), &UserKeys::BackSpace},
    {Shift(KeyName::BackSpace), &UserKeys::BackSpace},
    {Ctrl(KeyName::BackSpace), &UserKeys::BackSpaceWord},
    {Plain(KeyName::Delete), &UserKeys::DeleteNext},
    {Ctrl(KeyName::Delete), &UserKeys::DeleteNextWord},
    {Plain(KeyName::Return), &UserKeys::Break},
    {Shift(KeyName::Return), &UserKeys::BreakLine},
    {Plain(KeyName::Tab), &UserKeys::Tab},
    {Plain(KeyName::Space), &UserKeys::Blank},
    {Shift(KeyName::Space), &UserKeys::Blank},
    {Ctrl(u'a'), &UserKeys::SelectAll},
    {Ctrl(u'c'), &UserKeys::Copy},
    {Ctrl(KeyName::Insert), &UserKeys::Copy},
    {Ctrl(u'x'), &UserKeys::Cut},
    {Shift(KeyName::Delete), &UserKeys::Cut},
    {Ctrl(u'v'), &UserKeys::Paste},
    {CtrlShift(u'v'), &UserKeys::PasteText},
    {Shift(KeyName::Insert), &UserKeys::Paste},
    {Ctrl(u'z'), &UserKeys::Undo},
    {Ctrl(u'y'), &UserKeys::Redo},
    {CtrlShift(u'z'), &UserKeys::Redo},
    {Ctrl(u'b'), &UserKeys::ToggleBold},
    {Ctrl(u'i'), &UserKeys::ToggleItalic},
    {Ctrl(u'u'), &UserKeys::ToggleUnderline},
    {Ctrl(u'l'), &UserKeys::AlignLeft},
    {Ctrl(u'e'), &UserKeys::Centre},
    {Ctrl(u'r'), &UserKeys::AlignRight},
    {Ctrl(u'j'), &UserKeys::Justify},
    // The digits of a French keyboard are shifted.
    {Ctrl(u'1'), &UserKeys::SpaceSingly},
    {CtrlShift(u'1'), &UserKeys::SpaceSingly},
    {Ctrl(u'&'), &UserKeys::SpaceSingly},
    {Ctrl(u'5'), &UserKeys::SpaceOneAndHalf},
    {CtrlShift(u'5'), &UserKeys::SpaceOneAndHalf},
    {Ctrl(u'('), &UserKeys::SpaceOneAndHalf},
    {Ctrl(u'2'), &UserKeys::SpaceDoubly},
    {CtrlShift(u'2'), &UserKeys::SpaceDoubly},
    {Ctrl(u'é'), &UserKeys::SpaceDoubly},
};

bool IsCommandKey(const KeyStroke& key) {
  const auto& commands = UserKeys::kCommands;
  return std::ranges::find(commands, key, &UserKeys::Command::key) != std::end(commands);
}

UserKeys::UserKeys(EditingCore& core, CaretMotion& motion, TextEditing& text,
                   CharacterFormats& characters, ParagraphFormats& paragraphs, Transfer& transfer)
    : core_(core),
      motion_(motion),
      text_(text),
      characters_(characters),
      paragraphs_(paragraphs),
      transfer_(transfer) {}

bool UserKeys::Press(const KeyStroke& key) {
  if (key.alt) return false;
  if (const std::optional<Position> target = motion_.Target(key)) {
    core_.Select(key.shift ? core_.Anchor() : *target, *target);
    return true;
  }
  if (IsPlainCharacter(key)) {
    const char16_t character = key.shift ? ToUpper(key.character) : key.character;
    text_.Type({&character, 1});
    return true;
  }
  if (key == Shift(KeyName::Tab)) return GoTo(PreviousCell(core_.Content(), core_.Caret()));
  const auto* command = std::ranges::find(kCommands, key, &Command::key);
  if (command == std::end(kCommands)) return false;
  (this->*command->action)();
  return true;
}

bool UserKeys::KeepsView(const KeyStroke& key) { return key == Ctrl(u'a'); }

// At the start of a bulleted paragraph the key removes the bullet first.
void UserKeys::BackSpace() {
  const Document& document = core_.Content();
  const Position caret = core_.Caret();
  const bool first = ParagraphAround(document, caret).start == caret;
  if (first && !core_.HasSelection() && paragraphs_.Bullet() == true)
    return paragraphs_.Bullet(UndoKind::Delete, false);
  Erase(document.SnapBackward(std::max(caret - 1, 0)));
}

void UserKeys::BackSpaceWord() { Erase(PreviousWord(core_.Content(), core_.Caret())); }

void UserKeys::DeleteNext() {
  const Document& document = core_.Content();
  Erase(document.SnapForward(std::min(core_.Caret() + 1, document.Length())));
}

void UserKeys::DeleteNextWord() { Erase(NextWord(core_.Content(), core_.Caret())); }

// Deletes the selection or, if empty, the range between the caret and `to`, as far as it is in the
// caret's cell: cells are never joined, nor is a table with the text around it.
void UserKeys::Erase(Position to) {
  if (core_.HasSelection()) return text_.DeleteSelection(UndoKind::Delete);
  const Selection cell = CellAround(core_.Content(), core_.Caret());
  to = std::clamp(to, cell.start, cell.end);
  text_.Delete(UndoKind::Delete, std::min(core_.Caret(), to), std::max(core_.Caret(), to));
}

// A row that is not marked as one would fall apart.
void UserKeys::Break() {
  if (IsInUnmarkedRow(core_.Content(), core_.Selected().start)) return BreakLine();
  text_.Type(u"\r\n");
}

void UserKeys::BreakLine() { text_.Type(u"\v"); }

void UserKeys::Tab() {
  if (!GoTo(NextCell(core_.Content(), core_.Caret()))) text_.Type(u"\t");
}

bool UserKeys::GoTo(std::optional<Position> target) {
  if (target) core_.Select(*target, *target);
  return target.has_value();
}

void UserKeys::Blank() { text_.Type(u" "); }

void UserKeys::SelectAll() { core_.SelectAll(); }

void UserKeys::ToggleBold() { characters_.Effect(kBold, characters_.Effect(kBold) != true); }

void UserKeys::ToggleItalic() { characters_.Effect(kItalic, characters_.Effect(kItalic) != true); }

void UserKeys::ToggleUnderline() { characters_.Underlined(characters_.Underlined() != true); }

void UserKeys::SpaceLines(int twentieths) {
  paragraphs_.Record({.mask = ParagraphRecord::kLineSpacing,
                      .lineSpacingRule = LineRule::Multiple,
                      .lineSpacing = twentieths});
}

}  // namespace lumenote
