// What the editor shows nothing of, but keeps: words, groups, fields, and the head of the source.
#include <algorithm>
#include <utility>

#include "rtf/kept/KeptSource.h"
#include "rtf/read/Interpreter.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kObjectCharacter = u"\uFFFC";
constexpr int kDeepestField = 32;  // fields in each other; what is deeper in keeps its text alone
constexpr std::string_view kOwnName = "Lumenote";

/// Words of the head that the writer gives itself.
bool IsWrittenAnyway(std::string_view word) {
  return word == "rtf" || word == "urtf" || word == "viewkind";
}

bool NamesBorder(std::string_view word) {
  static constexpr std::string_view kOwners[] = {"box",    "brdr",   "trbrdr",
                                                 "clbrdr", "pgbrdr", "chbrdr"};
  return std::ranges::any_of(kOwners,
                             [&](std::string_view owner) { return word.starts_with(owner); });
}

}  // namespace

// --- words

void Interpreter::KeepWord(int value, const Token& word) {
  WordScope scope = static_cast<WordScope>(value);
  if (scope == WordScope::Border)
    scope = borderOf_;
  else
    borderOf_ = NamesBorder(word.text) ? scope : WordScope::None;
  if (scope == WordScope::None) return;
  if (target_ == RtfTarget::Selection && NamesTableEntry(word.text)) return;
  if (scope == WordScope::Character) {
    EditCharacter().words = keeper_.With(word, State().character.words);
  } else if (scope == WordScope::Paragraph) {
    EditParagraph().words = keeper_.With(word, State().paragraph.words);
  } else {
    keeper_.NeedTablesIf(NamesTableEntry(word.text));
    keeper_.Keep(SourceOf(word));
  }
}

/// A style is a label: how text of it looks, the words behind it say.
void Interpreter::KeepStyle(int value, const Token& word) {
  if (static_cast<WordScope>(value) == WordScope::Paragraph) BeginBody();
  KeepWord(value, word);
}

void Interpreter::KeepAssociated(int, const Token& word) {
  if (target_ == RtfTarget::Selection) return;
  EditCharacter().words = keeper_.WithScript(word, State().character.words);
}

/// Words of unknown meaning are the document's as long as they stand at its head.
void Interpreter::KeepUnknown(const Token& word) {
  const WordScope scope = FamilyScope(word.text);
  const bool ofDocument = inHead_ && groups_.size() == outermost_ && !IsWrittenAnyway(word.text);
  if (scope == WordScope::None && !ofDocument) return;
  if (word.text == "trowd") BeginBody();
  KeepWord(static_cast<int>(scope == WordScope::None ? WordScope::Place : scope), word);
}

// --- groups

/// A table of the head that has been read, be it behind the first words of the body.
void Interpreter::KeepInHead(const std::string& source) {
  ++laid_;
  if (inHead_)
    keeper_.Keep(source);
  else if (target_ == RtfTarget::Document)
    head_.source += source;
}

/// The group from the word at `from` on, which opens it, to where the reader stands.
std::string Interpreter::GroupSource(std::size_t from) {
  KeptSource kept(tokens_.Source(from, tokens_.At()), State().fallback);
  keeper_.NeedTablesIf(kept.needsHead);
  std::string source = std::move(kept).Closed();
  source.insert(0, wasStarred_ ? "{\\*" : "{");
  return source += '}';
}

/// What stands for itself in the text.
void Interpreter::KeepGroup(int, const Token&) {
  const std::size_t from = tokens_.Start();
  tokens_.SkipGroup();
  std::string source = GroupSource(from);
  BeforeText();
  body_.Append(kObjectCharacter,
               CharacterWith({.instead = std::move(source), .kind = Kept::Kind::Embedded}));
}

/// What is not seen in the text.
void Interpreter::KeepAside(int, const Token&) {
  const std::size_t from = tokens_.Start();
  tokens_.SkipGroup();
  keeper_.Keep(GroupSource(from));
}

/// The same for a table of the head.
void Interpreter::KeepTable(int, const Token&) {
  const std::size_t from = tokens_.Start();
  PassTable();
  keeper_.Keep(GroupSource(from));
}

// --- fields

void Interpreter::Field(int, const Token&) {
  BeginBody();
  GroupState& state = State();
  if (state.openFields == kDeepestField) return;
  ++state.openFields;
  state.fieldAt = tokens_.Start();
  state.fieldShown = false;
  state.laidBefore = laid_;
  state.keptBefore = keeper_.Here();
}

/// A field has one result, a group that says so with its first word. A list number before it is not
/// part of it.
void Interpreter::FieldResult(int, const Token&) {
  const std::size_t from = State().fieldAt;
  if (from == GroupState::kNowhere || State().fieldShown || laid_ != State().laidBefore) return;
  if (!wasOpened_ && !wasStarred_) return;
  const KeptSource opening(tokens_.Source(from, tokens_.At()), State().fallback,
                           KeptSource::Piece::FieldOpening);
  if (opening.open != 1) return;
  keeper_.NeedTablesIf(opening.needsHead);
  keeper_.TakeSince(State().keptBefore);
  if (!marker_.empty()) PlaceMarker();
  for (auto group = groups_.rbegin(); group != groups_.rend() && group->fieldAt == from; ++group) {
    group->fieldShown = true;
    group->laidBefore = laid_;
    group->keptBefore = keeper_.Here();
  }
  State().fieldAt = GroupState::kNowhere;
  EnterField({.opening = "{" + opening.text, .closing = "}}"});
}

/// What the group at hand holds from now on is in the field.
void Interpreter::EnterField(KeptField field) {
  GroupState& state = State();
  field.outer = state.field;
  field.serial = formats_.NextSerial();
  state.field = formats_.fields.Intern(std::move(field));
  state.inField = formats_.kept.Intern({.field = state.field});
  state.characterKnown = false;
}

/// At the end of `group`: a field that shows nothing goes with the next character, whole.
void Interpreter::EndField(const GroupState& group, const GroupState& around) {
  if (group.fieldAt == GroupState::kNowhere || group.fieldAt == around.fieldAt) return;
  if (laid_ != group.laidBefore) return;
  KeptSource source(tokens_.Source(group.fieldAt, tokens_.At()), around.fallback,
                    KeptSource::Piece::Field);
  keeper_.NeedTablesIf(source.needsHead);
  keeper_.TakeSince(group.keptBefore);
  keeper_.Keep("{" + std::move(source).Closed() + "}");
}

bool Interpreter::IsNumbered() const {
  const ParagraphState& paragraph = State().paragraph;
  return paragraph.list >= 0 || paragraph.numbered;
}

// --- characters

CharId Interpreter::CharacterWith(Kept kept) {
  kept.before = keeper_.Take();
  kept.field = State().field;
  if (std::string row = RowDefinition(kept.before); !row.empty()) row_ = std::move(row);
  CharFormat format = State().character;
  format.kept = keeper_.KeptNumber(std::move(kept));
  return formats_.characters.Intern(format);
}

CharId Interpreter::NextCharacter() {
  return keeper_.Pending() ? CharacterWith({}) : CharacterNumber();
}

// --- the head

/// The tables that this component wrote are to stay as they are.
void Interpreter::Generator(int, const Token&) {
  const std::size_t from = tokens_.At();
  tokens_.SkipGroup();
  keeper_.NeedTablesIf(tokens_.Source(from, tokens_.At()).starts_with(kOwnName));
}

/// What came before goes with the note; a selection leaves it behind.
void Interpreter::BeginBody() {
  if (!inHead_) return;
  inHead_ = false;
  std::string source = keeper_.Take();
  if (target_ == RtfTarget::Document) head_.source = std::move(source);
}

HeadId Interpreter::Head() {
  head_.tables = keeper_.NeedsTables();
  if (head_.tables) {
    for (const auto& [number, font] : fonts_.All())
      head_.fonts.push_back({number, font.font, font.page});
    std::ranges::sort(head_.fonts, {}, &KeptHead::Font::number);
    head_.colours = colours_.All();
    if (head_.fontTable.empty()) head_.page = documentPage_;
    head_.defaultFont = std::max(defaultFont_, 0);
  } else {
    head_ = {.source = std::move(head_.source)};
  }
  head_.tail = keeper_.Take();
  return formats_.heads.Intern(std::move(head_));
}

}  // namespace lumenote
