// Content that is kept but not shown: words, groups, and the source's head.
#include <algorithm>
#include <iterator>
#include <utility>

#include "document/kept/EntryWords.h"
#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"

namespace lumenote {
namespace {

constexpr std::string_view kOwnName = "Lumenote";

/// Words of the head that the writer always writes itself.
bool IsWrittenAnyway(std::string_view word) {
  return word == "rtf" || word == "urtf" || word == "viewkind";
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
  needsTables_ |= TableNamedBy(word.text).has_value();
  if (scope == WordScope::Character) {
    EditCharacter().words = words_.With(word, State().character.words);
  } else if (scope == WordScope::Paragraph) {
    EditParagraph().format.words = words_.With(word, State().paragraph.format.words);
  } else {
    RowItems().Keep(KeptItem::Kind::Words, SourceOf(word));
  }
}

/// Where words and groups are kept that may be part of a row's definition. Those in a field belong
/// to it as long as it may show nothing.
ItemKeeper& Interpreter::RowItems() {
  const bool nested = State().inNestedRow && State().fieldAt == GroupState::kNowhere;
  return nested ? nestedRow_ : items_;
}

/// A style is only a label: the words after it give the text's look.
void Interpreter::KeepStyle(int, const Token& word) {
  BeginBody();
  KeepWord(static_cast<int>(WordScope::Paragraph), word);
}

void Interpreter::KeepMark(int value, const Token& word) {
  const auto kind = static_cast<KeptWord::Kind>(value);
  CharFormat& format = EditCharacter();
  State().part = words_.Name(word);
  format.words = words_.WithMark(State().part, kind, format.stated, format.words);
}

void Interpreter::KeepAssociated(int, const Token& word) {
  needsTables_ |= TableNamedBy(word.text).has_value();
  EditCharacter().words = words_.WithAssociated(State().part, word, State().character.words);
}

/// Unknown words in the head belong to the document.
void Interpreter::KeepUnknown(const Token& word) {
  const WordScope scope = FamilyScope(word.text);
  const bool ofDocument = inHead_ && groups_.size() == outermost_ && !IsWrittenAnyway(word.text);
  if (scope == WordScope::None && !ofDocument) return;
  KeepWord(static_cast<int>(scope == WordScope::None ? WordScope::Anchored : scope), word);
}

void Interpreter::KeepSection(int, const Token& word) {
  RowItems().Keep(KeptItem::Kind::Section, SourceOf(word));
}

void Interpreter::KeepRow(int, const Token& word) {
  BeginBody();
  RowItems().Keep(KeptItem::Kind::Row, SourceOf(word));
}

void Interpreter::KeepCell(int, const Token& word) {
  RowItems().Keep(KeptItem::Kind::Words, SourceOf(word));
  RowItems().KeepCell(word.number);
}

// --- groups

/// The source of the group from its first word, at `from`, to the current position. A \* behind
/// formats counts for readers, too.
std::string Interpreter::GroupSource(std::size_t from) {
  KeptSource kept(tokens_.Source(from, tokens_.At()), State().fallback);
  needsTables_ |= kept.needsHead;
  std::string source = std::move(kept).Closed();
  source.insert(0, behindStar_ ? "{\\*" : "{");
  return source += '}';
}

/// Kept groups with a placeholder in the text.
void Interpreter::KeepGroup(int value, const Token&) {
  const std::size_t from = tokens_.Start();
  tokens_.SkipGroup();
  const auto kind = static_cast<KeptItem::Kind>(value);
  const ItemId self = formats_.items.Chain({{.kind = kind, .source = GroupSource(from)}});
  BeforeText();
  body_.Append(std::u16string_view(&kObjectCharacter, 1),
               CharacterWith({.self = self, .kind = Kept::Kind::Embedded}));
}

/// Kept groups that are invisible in the text.
void Interpreter::KeepAside(int value, const Token&) {
  const std::size_t from = tokens_.Start();
  tokens_.SkipGroup();
  RowItems().Keep(static_cast<KeptItem::Kind>(value), GroupSource(from));
}

/// The same for a word that has this meaning only as the first of its group.
void Interpreter::KeepDestination(int value, const Token& word) {
  if (wasOpened_ || wasStarred_) KeepAside(value, word);
}

/// The same for a table of the head.
void Interpreter::KeepTable(int, const Token&) {
  const std::size_t from = tokens_.Start();
  PassTable();
  items_.Keep(KeptItem::Kind::Group, GroupSource(from));
}

/// Keeps a table that was read, even if it comes after the first words of the body.
void Interpreter::KeepInHead(std::string source) {
  ++contentCount_;
  if (inHead_)
    items_.Keep(KeptItem::Kind::Group, source);
  else
    headItems_.push_back({.source = std::move(source)});
}

// --- characters

/// The last table row that the items define, with the words after it; without source if there is
/// none.
KeptItem Interpreter::RowDefinition(const KeptItems& items) {
  using Kind = KeptItem::Kind;
  KeptItem row{.kind = Kind::Row};
  for (const KeptItem& item : items) {
    if (item.kind == Kind::Row) row = {.kind = Kind::Row};
    if (item.kind != Kind::Row && (item.kind != Kind::Words || row.source.empty())) continue;
    row.source += item.source;
    row.cells.insert(row.cells.end(), item.cells.begin(), item.cells.end());
  }
  return row;
}

/// Adds all items kept before the character.
CharId Interpreter::CharacterWith(Kept kept) {
  KeptItems before = items_.Take();
  if (KeptItem row = RowDefinition(before); !row.source.empty()) row_ = std::move(row);
  kept.before = formats_.items.Chain(std::move(before), kept.before);
  kept.field = State().field;
  if (kept.before != 0) kept.serial = formats_.NextSerial();
  CharFormat format = State().character;
  format.kept = formats_.kept.Intern(kept);
  return formats_.characters.Intern(format);
}

CharId Interpreter::NextCharacter() {
  return items_.Pending() ? CharacterWith({}) : CharacterNumber();
}

// --- the head

/// Some readers lay out spaces by whether there is a generator.
void Interpreter::Generator(int, const Token&) {
  const std::size_t from = tokens_.At();
  tokens_.SkipGroup();
  head_.generator = true;
  needsTables_ |= tokens_.Source(from, tokens_.At()).starts_with(kOwnName);
}

/// Tables written by this component are kept as they are.
void Interpreter::OwnTables(int, const Token&) {
  tokens_.SkipGroup();
  needsTables_ = true;
}

/// Everything before belongs to the note as a whole.
void Interpreter::BeginBody() {
  if (!inHead_) return;
  inHead_ = false;
  headItems_ = items_.Take();
}

/// Whether some font leaves its bytes, or those of its name, to a document's page other than that
/// of Windows.
bool Interpreter::NeedsPage() const {
  if (documentPage_ == kPageOfWindows) return false;
  if (fonts_.HasForeignNames()) return true;
  return std::ranges::any_of(fonts_.All(), [&](const auto& entry) {
    const SourceFont& font = entry.second;
    return font.page == 0 && formats_.fonts[font.font].charset == kDefaultCharset;
  });
}

/// The fonts and colours of the head.
KeptHead& Interpreter::HeadTables() {
  needsTables_ |= NeedsPage();
  if (needsTables_) {
    head_.colours = colours_.All();
    head_.tints = colours_.Tints();
    if (head_.fontTable.empty()) head_.page = documentPage_;
  } else {
    head_ = {.fontTable = fonts_.HasForeignNames() ? std::move(head_.fontTable) : std::string()};
  }
  for (const auto& [number, font] : fonts_.All()) {
    const int page =
        head_.fontTable.empty() ? CodePageOfCharset(formats_.fonts[font.font].charset) : font.page;
    head_.fonts.push_back({number, font.font, page});
  }
  std::ranges::sort(head_.fonts, {}, &KeptHead::Font::number);
  if (fonts_.Find(defaultFont_)) head_.defaultFont = defaultFont_;
  head_.tables = needsTables_;
  return head_;
}

HeadId Interpreter::Head() {
  HeadTables();
  head_.items = formats_.items.Chain(std::move(headItems_));
  head_.tail = formats_.items.Chain(items_.Take());
  return formats_.heads.Intern(std::move(head_));
}

}  // namespace lumenote
