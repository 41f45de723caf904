// The main loop: groups, text bytes, and preparations before text.
#include "rtf/read/Interpreter.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"
#include "document/paste/HeadMerge.h"
#include "document/paste/PastedText.h"
#include "rtf/read/Keywords.h"
#include "rtf/words/Spellings.h"

namespace lumenote {
namespace {

/// Whether a token is a byte after a backslash, which may be a character's second byte.
bool IsEscapedByte(const Token& token) {
  const unsigned char byte = token.byte;
  return token.kind == Token::Kind::Symbol && (byte == '\\' || byte == '{' || byte == '}');
}

constexpr std::size_t kBytesOfTab = 4;  // minimum length of a \tx with its number
constexpr std::size_t kLeastTabs = 4096;

std::size_t CharacterLength(std::u16string_view text) {
  return text.size() > 1 && IsHighSurrogate(text.front()) ? 2
                                                          : std::min<std::size_t>(text.size(), 1);
}

/// The character of a symbol; 0 for markers of groups, indexes and formulas.
char16_t CharacterOf(char symbol) {
  switch (symbol) {
    case '~':
      return u'\u00A0';
    case '_':
      return u'\u2011';
    case '-':
      return u'\u00AD';
    case '{':
    case '}':
    case '\\':
    case '\t':
      return static_cast<unsigned char>(symbol);
    default:
      return 0;
  }
}

}  // namespace

Interpreter::Interpreter(std::string_view source, RtfTarget target, FormatTables& formats,
                         const CharFormat& base, const FinalMark& note, std::size_t opened)
    : tokens_(source),
      target_(target),
      note_(note),
      formats_(formats),
      groups_(1),
      default_(base),
      tabsLeft_(source.size() / kBytesOfTab + kLeastTabs),
      words_(formats, source.size()) {
  default_.stated = 0;
  State().character = default_;
  groups_.resize(groups_.size() + opened, groups_.front());
}

Fragment Interpreter::Read() {
  Interpret();
  for (std::size_t group = groups_.size() - 1; group > 0; --group)
    EndField(groups_[group], groups_[group - 1]);
  BeginBody();
  // The final mark lies after all fields, even those that only the end of the source closes.
  if (State().field != 0) EditCharacter().reset = Reset::None;
  State().field = State().inField = 0;
  if (!marker_.empty()) PlaceMarker();
  Fragment fragment = body_.Finish(target_, {CharacterNumber(), EndedParagraph()});
  if (target_ == RtfTarget::Selection)
    return WithTablesOf(note_, fragment, HeadTables(), HeadSource(headItems_), formats_);
  fragment.mark->head = Head();
  return fragment;
}

void Interpreter::Interpret() {
  TakeText();
  for (Token token = tokens_.Next(); token.kind != Token::Kind::End; token = tokens_.Next()) {
    if (token.kind == Token::Kind::Close && Ended()) break;
    Take(token);
    TakeText();
  }
  EndBytes();
}

void Interpreter::Take(const Token& token) {
  using Kind = Token::Kind;
  wasStarred_ = std::exchange(starred_, false);
  wasOpened_ = std::exchange(opened_, false);
  behindStar_ = std::exchange(atStar_, false);
  const bool escaped = State().page.MultiByte() && IsEscapedByte(token);
  const bool ofBytes =
      escaped || token.kind == Kind::Text || token.kind == Kind::Byte || token.kind == Kind::High;
  behindText_ = std::exchange(atText_, ofBytes);
  if (escaped) return Byte(token.byte);
  if (!ofBytes) EndBytes();
  switch (token.kind) {
    case Kind::Byte:
      return Byte(token.byte);
    case Kind::Word:
      return Word(token);
    case Kind::Symbol:
      atStar_ = token.byte == '*';
      starred_ = wasOpened_ && atStar_;
      return Symbol(static_cast<char>(token.byte));
    case Kind::Open:
      return Open();
    case Kind::Close:
      return Close();
    case Kind::Binary:
      Swallowed();
      return;
    default:
      return Bytes(token.text);
  }
}

/// Fast path: copies text directly from source to fragment, unless part of it is to be skipped or
/// its characters may have several bytes.
void Interpreter::TakeText() {
  if (swallow_ > 0 || starred_ || State().page.MultiByte() || !AtText()) return;
  opened_ = atStar_ = false;
  BeginText();
  if (items_.Pending()) {
    TakeSome(1, NextCharacter());
    if (!AtText()) return;
  }
  const CharId format = CharacterNumber();
  while (TakeSome(Leaf::kCapacity, format)) {
  }
}

/// Reads text into the current leaf, as bytes if possible, at most `most` units. Returns whether it
/// stopped for lack of space.
bool Interpreter::TakeSome(std::size_t most, CharId format) {
  const CodePage page = State().page;
  const bool unicode = HasOneFallback();
  const auto take = [&](auto room, auto decode) {
    room = room.first(std::min(most, room.size()));
    const std::size_t count = decode(room);
    if (count > 0) body_.Commit(static_cast<int>(count), format);
    return count == room.size();
  };
  if (page.Number() == kPageOfWindows) {
    if (const auto room = body_.ByteRoom(); !room.empty()) {
      if (take(room, [&](auto part) { return tokens_.DecodeToBytes(unicode, part); })) return true;
      if (!AtText()) return false;
    }
  }
  return take(body_.UnitRoom(), [&](auto part) { return tokens_.Decode(page, unicode, part); });
}

/// Whether the "}" just read ends the document. Braces that only close groups at the end keep the
/// formats, for the final mark. After the document's closing brace, text without markup was added
/// by a mailer or disk and is ignored, and so is a second document.
bool Interpreter::Ended() const {
  if (tokens_.OnlyClosesFollow()) return true;
  const bool outermost = !placingMarker_ && uncounted_ == 0 && groups_.size() <= outermost_;
  return outermost && (!tokens_.MarkupFollows() || tokens_.DocumentFollows());
}

void Interpreter::Open() {
  swallow_ = 0;
  borderOf_ = WordScope::None;
  opened_ = true;
  if (groups_.size() < kDeepest) {
    groups_.push_back(groups_.back());
    State().contentAtStart = contentCount_;
  } else {
    ++uncounted_;
  }
}

void Interpreter::Close() {
  swallow_ = 0;
  borderOf_ = WordScope::None;
  if (uncounted_ > 0) return void(--uncounted_);
  EndField(State(), Outer());
  const bool surplus = groups_.size() <= outermost_;
  if (surplus) {
    State().fieldAt = GroupState::kNowhere;
  } else {
    HoldParagraph();
    const bool shown = State().contentAtStart != contentCount_;
    const Reset last = State().character.reset;
    groups_.pop_back();
    if (shown) ResetBehindGroup(last);
  }
  if (inHead_ && groups_.size() == outermost_) SkipTableTail(surplus);
}

/// After a group with text, in which `last` held last. That text is between the text outside and
/// the \plain there, but the group may have ended with one of its own.
void Interpreter::ResetBehindGroup(Reset last) {
  const bool ends = IsBehindText(last) && resetAt_ == contentCount_;
  const Reset known = State().character.reset;
  if (!ends && !IsBehindText(known)) return;
  EditCharacter().reset = ends ? last : Reset::None;
}

/// A word counts as one fallback character of a \u, but only words for characters are skipped: no
/// break and no format is lost.
void Interpreter::Word(const Token& word) {
  const Keyword* keyword = FindKeyword(word.text);
  if (wasStarred_ && !(keyword && keyword->opensGroup))
    return KeepAside(static_cast<int>(KeptItem::Kind::Group), word);
  const bool swallowed = Swallowed();
  if (!keyword) return KeepUnknown(word);
  if (keyword->handler != &Interpreter::KeepWord) borderOf_ = WordScope::None;
  if (swallowed && keyword->handler == &Interpreter::Character) return;
  (this->*keyword->handler)(keyword->value, word);
}

void Interpreter::Symbol(char symbol) {
  if (symbol == '\r' || symbol == '\n') return Break(0, {});
  const char16_t unit = CharacterOf(symbol);
  if (unit != 0 && !Swallowed()) Put(unit, Spelling::Name);
}

bool Interpreter::Swallowed() {
  if (swallow_ == 0) return false;
  --swallow_;
  return true;
}

void Interpreter::Byte(unsigned char byte) {
  if (Swallowed() || byte == 0) return;
  if (byte == '\r' || byte == '\n') {
    EndBytes();
    return Break(0, {});
  }
  if (State().page.MultiByte()) {
    bytes_ += static_cast<char>(byte);
  } else {
    const char16_t unit = State().page[byte];
    Put(unit, unit == kSoftHyphen ? Spelling::Code : Spelling::Usual);
  }
}

/// The slow path for text.
void Interpreter::Bytes(std::string_view bytes) {
  const auto passed = std::min(static_cast<std::size_t>(swallow_), bytes.size());
  swallow_ -= static_cast<int>(passed);
  bytes.remove_prefix(passed);
  if (State().page.MultiByte()) {
    bytes_ += bytes;
  } else {
    tokens_.PutBack(bytes.size());
  }
}

void Interpreter::EndBytes() {
  if (bytes_.empty()) return;
  const std::string bytes = std::exchange(bytes_, {});
  BeforeText();
  decoded_.clear();
  DecodeCodePage(State().page.Number(), bytes, decoded_);
  const std::u16string_view text = decoded_;
  const std::size_t first = items_.Pending() ? CharacterLength(text) : 0;
  if (first > 0) body_.Append(text.substr(0, first), NextCharacter());
  body_.Append(text.substr(first), CharacterNumber());
}

void Interpreter::Put(char16_t unit) {
  BeginText();
  body_.Append(std::u16string_view(&unit, 1), NextCharacter());
}

void Interpreter::Put(char16_t unit, Spelling said) {
  if (said == Spelling::Usual || !HasSpellings(unit)) return Put(unit);
  const bool foreign = State().page.Number() != kPageOfWindows;
  if (said == UsualSpelling(unit, foreign)) return Put(unit);
  BeginText();
  EditCharacter().spelling = said;
  body_.Append(std::u16string_view(&unit, 1), NextCharacter());
  EditCharacter().spelling = Spelling::Usual;
}

void Interpreter::BeginText() {
  atText_ = true;
  BeforeText();
}

void Interpreter::BeforeText() {
  CountContent();
  held_.reset();
  if (inHead_) BeginBody();
  if (!marker_.empty()) PlaceMarker();
  if (body_.Holds()) body_.Release();
  const bool opens = !opening_ || opensAnew_;
  if (opens && !placingMarker_ && target_ == RtfTarget::Document) OpenParagraph();
}

CharFormat& Interpreter::EditCharacter() {
  State().characterKnown = false;
  return State().character;
}

CharId Interpreter::CharacterNumber() {
  GroupState& state = State();
  if (!state.characterKnown) {
    CharFormat format = state.character;
    format.kept = state.inField;
    state.characterId = formats_.characters.Intern(format);
    state.characterKnown = true;
  }
  return state.characterId;
}

}  // namespace lumenote
