// What the editor shows nothing of, but keeps: words, groups, fields, and the head of the source.
#include <algorithm>
#include <utility>

#include "rtf/Interpreter.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kObjectCharacter = u"\uFFFC";
constexpr std::size_t kMostWords = 512;  // bytes of the kept words of one format
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

/// A word says nothing twice, but the parts of a border come once for each of its sides.
void Interpreter::AddWord(const Token& word, WordsId& words) {
  std::string source = formats_.words[words].source;
  if (!word.text.starts_with("br")) EraseWord(word.text, source);
  head_.tables |= NamesTableEntry(word.text);
  words = WordsNumber(source + SourceOf(word), words);
}

/// Bounds what hostile sources can make of their words.
WordsId Interpreter::WordsNumber(std::string source, WordsId otherwise) {
  const std::size_t size = source.size();
  if (size > kMostWords || size > wordsLeft_) return otherwise;
  const std::uint32_t known = formats_.words.Size();
  const WordsId number = formats_.words.Intern({std::move(source)});
  if (formats_.words.Size() != known) wordsLeft_ -= size;
  return number;
}

void Interpreter::KeepWord(int value, const Token& word) {
  WordScope scope = static_cast<WordScope>(value);
  if (scope == WordScope::Border)
    scope = borderOf_;
  else
    borderOf_ = NamesBorder(word.text) ? scope : WordScope::None;
  if (scope == WordScope::None) return;
  if (target_ == RtfTarget::Selection && NamesTableEntry(word.text)) return;
  if (scope == WordScope::Character) return AddWord(word, EditCharacter().words);
  if (scope == WordScope::Paragraph) return AddWord(word, EditParagraph().words);
  head_.tables |= NamesTableEntry(word.text);
  KeepSource(SourceOf(word));
}

void Interpreter::KeepAssociated(int, const Token& word) {
  if (target_ == RtfTarget::Selection) return;
  head_.tables |= NamesTableEntry(word.text);
  WordsId& words = EditCharacter().words;
  const std::string& known = formats_.words[words].source;
  const bool marker = IsMarker(word.text);
  if (marker) associatedWith_ = word.text;
  words = WordsNumber(
      marker ? WithMarker(known, word.text) : WithAssociated(known, associatedWith_, word), words);
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

void Interpreter::KeepSource(const std::string& source) { pending_ += source; }

/// A table of the head that has been read, be it behind the first words of the body.
void Interpreter::KeepInHead(const std::string& source) {
  ++laid_;
  if (inHead_)
    KeepSource(source);
  else if (target_ == RtfTarget::Document)
    head_.source += source;
}

/// The group from the word at `from` on, which opens it, to where the reader stands.
std::string Interpreter::GroupSource(std::size_t from) {
  const KeptSource kept(tokens_.Source(from, tokens_.At()), State().fallback);
  head_.tables |= kept.needsHead;
  return (wasStarred_ ? "{\\*" : "{") + kept.Closed() + "}";
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
  KeepSource(GroupSource(from));
}

/// The same for a table of the head; a word of the body behind its entries shows that its brace is
/// lost.
void Interpreter::KeepTable(int, const Token&) {
  const std::size_t from = tokens_.Start();
  int depth = 0;
  tokens_.WhileInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close) --depth;
    return depth > 0 || !EndsTable(token);
  });
  KeepSource(GroupSource(from));
}

// --- fields

void Interpreter::Field(int, const Token&) {
  GroupState& state = State();
  if (state.openFields == kDeepestField) return;
  ++state.openFields;
  state.fieldAt = tokens_.Start();
  state.laidBefore = laid_;
  state.pendingBefore = pending_.size();
}

void Interpreter::FieldResult(int, const Token&) {
  const std::size_t from = std::exchange(State().fieldAt, GroupState::kNowhere);
  if (from == GroupState::kNowhere) return;
  const KeptSource opening(tokens_.Source(from, tokens_.At()), State().fallback,
                           KeptSource::Words::OfFields);
  if (opening.open != 1 || laid_ != State().laidBefore) return;
  head_.tables |= opening.needsHead;
  pending_.resize(std::min(pending_.size(), State().pendingBefore));
  EnterField({.opening = "{" + opening.text, .closing = "}}"});
}

/// What the group at hand holds from now on is in the field.
void Interpreter::EnterField(KeptField field) {
  GroupState& state = State();
  field.outer = state.field;
  field.serial = formats_.fields.Size();
  state.field = formats_.fields.Intern(field);
  state.inField = formats_.kept.Intern({.field = state.field});
  state.characterKnown = false;
}

void Interpreter::LeaveField() {
  GroupState& state = State();
  state.field = formats_.fields[state.field].outer;
  state.inField = state.field == 0 ? 0 : formats_.kept.Intern({.field = state.field});
  state.characterKnown = false;
}

/// At the end of `group`: a field that shows nothing goes with the next character, whole.
void Interpreter::EndField(const GroupState& group, const GroupState& around) {
  if (group.fieldAt == GroupState::kNowhere || group.fieldAt == around.fieldAt) return;
  if (laid_ != group.laidBefore) return;
  const KeptSource source(tokens_.Source(group.fieldAt, tokens_.At()), around.fallback);
  head_.tables |= source.needsHead;
  pending_.resize(std::min(pending_.size(), group.pendingBefore));
  KeepSource("{" + source.Closed() + "}");
}

bool Interpreter::IsNumbered() const {
  const ParagraphState& paragraph = State().paragraph;
  return paragraph.list >= 0 || paragraph.numbered;
}

// --- characters

CharId Interpreter::CharacterWith(Kept kept) {
  kept.before = std::exchange(pending_, {});
  kept.field = State().field;
  CharFormat format = State().character;
  format.kept = formats_.kept.Intern(kept);
  kept.second = format.kept == lastKept_ && !kept.before.empty();
  if (kept.second) format.kept = formats_.kept.Intern(kept);
  lastKept_ = format.kept;
  return formats_.characters.Intern(format);
}

CharId Interpreter::NextCharacter() {
  return pending_.empty() ? CharacterNumber() : CharacterWith({});
}

// --- the head

/// This component writes every format out, whatever the style of the text, and tables that are to
/// stay as they are.
void Interpreter::Generator(int, const Token&) {
  const std::size_t from = tokens_.At();
  tokens_.SkipGroup();
  const bool own = tokens_.Source(from, tokens_.At()).starts_with(kOwnName);
  appliesStyles_ = !own;
  head_.tables |= own;
}

/// What came before goes with the note; a selection leaves it behind.
void Interpreter::BeginBody() {
  if (!inHead_) return;
  inHead_ = false;
  std::string source = std::exchange(pending_, {});
  if (target_ == RtfTarget::Document) head_.source = std::move(source);
}

HeadId Interpreter::Head() {
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
  head_.tail = std::exchange(pending_, {});
  return formats_.heads.Intern(head_);
}

}  // namespace lumenote
