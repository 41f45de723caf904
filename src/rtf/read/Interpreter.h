// Interprets RTF control words to build a note.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/lists/ListDefinitions.h"
#include "document/text/Fragment.h"
#include "rtf/read/BodyText.h"
#include "rtf/read/GroupState.h"
#include "rtf/read/ItemKeeper.h"
#include "rtf/read/Reader.h"
#include "rtf/read/WordFamilies.h"
#include "rtf/read/WordKeeper.h"
#include "rtf/read/tables/ColourTable.h"
#include "rtf/read/tables/FontTable.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// Reads one source. Groups are a stack of at most `kDeepest` states; deeper groups are only
/// counted, so their formats leak outwards, but memory is bounded.
class Interpreter {
 public:
  /// The source starts inside `opened` groups. A selection goes to the note that `note` ends.
  Interpreter(std::string_view source, RtfTarget target, FormatTables& formats,
              const CharFormat& base, const FinalMark& note, std::size_t opened);
  Fragment Read();
  FontId PlainFont() const { return default_.font; }

  // Handlers of control words; `value` is the keyword's parameter in Keywords.cpp.

  // Text.
  void Character(int value, const Token& word);
  void Unicode(int value, const Token& word);
  void Break(int value, const Token& word);
  void EndParagraph(int value, const Token& word);
  void Cell(int value, const Token& word);
  void Row(int value, const Token& word);

  // Groups.
  void EnterGroup(int value, const Token& word);
  void NestedRow(int value, const Token& word);
  void SkipGroup(int value, const Token& word);
  void KeepGroup(int value, const Token& word);
  void KeepAside(int value, const Token& word);
  void KeepDestination(int value, const Token& word);
  void KeepTable(int value, const Token& word);
  void Field(int value, const Token& word);
  void FieldResult(int value, const Token& word);
  void Generator(int value, const Token& word);
  void OwnTables(int value, const Token& word);
  void KeepWord(int value, const Token& word);
  void KeepSection(int value, const Token& word);
  void KeepRow(int value, const Token& word);
  void KeepCell(int value, const Token& word);
  void KeepStyle(int value, const Token& word);
  void KeepMark(int value, const Token& word);
  void KeepAssociated(int value, const Token& word);
  void SkipAlternative(int value, const Token& word);
  void Marker(int value, const Token& word);
  void Numbering(int value, const Token& word);
  void Fonts(int value, const Token& word);
  void Colours(int value, const Token& word);
  void Styles(int value, const Token& word);
  void Lists(int value, const Token& word);
  void ListOverrides(int value, const Token& word);

  // The document.
  void DocumentPage(int value, const Token& word);
  void DefaultFont(int value, const Token& word);
  void Fallback(int value, const Token& word);

  // Characters.
  void Plain(int value, const Token& word);
  void Font(int value, const Token& word);
  void Size(int value, const Token& word);
  void Effect(int value, const Token& word);
  void Script(int value, const Token& word);
  void UnderlineAs(int value, const Token& word);
  void Number(int row, const Token& word);
  void Raise(int value, const Token& word);
  void SpacingInQuarterPoints(int value, const Token& word);

  // Paragraphs.
  void DefaultParagraph(int value, const Token& word);
  void Align(int value, const Token& word);
  void Length(int row, const Token& word);
  void LeftIndent(int value, const Token& word);
  void FirstIndent(int value, const Token& word);
  void LineSpacing(int value, const Token& word);
  void MultipleLines(int value, const Token& word);
  void Tab(int value, const Token& word);
  void TabKindIs(int value, const Token& word);
  void TabLeaderIs(int value, const Token& word);
  void RightToLeft(int value, const Token& word);
  void InTable(int value, const Token& word);
  void TableNesting(int value, const Token& word);
  void List(int value, const Token& word);
  void ListLevel(int value, const Token& word);

 private:
  static constexpr std::size_t kDeepest = 10'000;

  void Interpret();
  void Take(const Token& token);
  /// Whether a \u has one fallback character.
  bool HasOneFallback() const { return State().fallback == 1; }
  bool AtText() { return tokens_.AtText(HasOneFallback()); }
  void TakeText();
  bool TakeSome(std::size_t most, CharId format);
  bool Ended() const;
  void Open();
  void Close();
  void Word(const Token& word);
  void Symbol(char symbol);
  void Byte(unsigned char byte);
  void Bytes(std::string_view bytes);
  void EndBytes();
  bool Swallowed();

  void Put(char16_t unit);
  /// The same for a character that may have several spellings.
  void Put(char16_t unit, Spelling said);
  void BeginText();
  void BeforeText();
  void PlaceMarker();
  bool IsNumbered() const;

  ItemKeeper& RowItems();
  void KeepUnknown(const Token& word);
  void KeepTint(const Token& word);
  void KeepInHead(std::string source);
  std::string GroupSource(std::size_t from);
  void PassTable();
  void KeepLists();
  void SkipTableTail(bool surplus);
  void EnterField(KeptField::Kind kind, std::string opening);
  bool AtAside();
  void EndField(const GroupState& group, const GroupState& around);
  void BeginBody();
  /// Records that text or a break is being added.
  void CountContent() {
    ++contentCount_;
    begun_ = true;
    borderOf_ = WordScope::None;
  }
  bool PrepareBreak();
  void BreakAs(Kept kept);
  static KeptItem RowDefinition(const KeptItems& items);
  CharId CharacterWith(Kept kept);
  CharId NextCharacter();
  KeptHead& HeadTables();
  HeadId Head();
  bool NeedsPage() const;
  void UseDefaultFont(GroupState& state);
  bool HasBullet(const ParagraphState& paragraph) const;

  GroupState& State() { return groups_.back(); }
  const GroupState& State() const { return groups_.back(); }
  /// The enclosing group's state, for groups that affect what follows them.
  GroupState& Outer() { return groups_.size() > 1 ? groups_[groups_.size() - 2] : groups_.back(); }
  CharFormat& EditCharacter();
  Reset ResetHere();
  void ResetBehindGroup(Reset last);
  CharFormat& StatedCharacter(CharStated attribute);
  ParagraphState& EditParagraph();
  ParaFormat& StatedFormat(ParaStated attribute);
  CharId CharacterNumber();
  ParaId ParagraphNumber();
  ParaId NumberOf(const ParagraphState& paragraph);
  void OpenParagraph();
  ParaId Opened(ParaId ended);
  ParaFormat OpeningOf(const ParaFormat& format, ParaFormat began, bool alignedLate);
  void HoldParagraph();
  /// The format of the paragraph or cell that ends here.
  ParaId EndedParagraph();
  TabsId TabsNumber(const TabStops& stops);

  Tokenizer tokens_;
  RtfTarget target_;
  FinalMark note_;
  FormatTables& formats_;
  BodyText body_;
  std::vector<GroupState> groups_;
  std::size_t outermost_ = 2;  // depth that surplus "}" never leave: the source and its own group
  std::size_t uncounted_ = 0;  // open groups beyond `kDeepest`

  FontTable fonts_;
  ColourTable colours_;
  ListDefinitions lists_;
  CharFormat default_;    // result of \plain
  int defaultFont_ = -1;  // \deff
  int documentPage_ = kPageOfWindows;

  std::size_t tabsLeft_;  // tab stops that paragraph formats may still use

  std::uint32_t paragraphEdits_ = 0;
  std::size_t paragraphStart_ = 0;           // the content count when the paragraph began
  std::optional<ParagraphState> held_ = {};  // of a closed group with all its text
  std::optional<ParaId> opening_ = {};       // its format where its text began
  bool opensAnew_ = false;                   // for readers, text after a \pard begins it again
  bool alignedLate_ = false;                 // its alignment has been said behind its beginning

  ItemKeeper items_;
  ItemKeeper nestedRow_;  // the definition of the current nested row, if in a group of its own
  WordKeeper words_;
  bool needsTables_ = false;      // some kept content refers to the source's tables
  KeptItem row_;                  // definition of the current row, if it preceded the cells
  std::size_t contentCount_ = 0;  // count of texts, breaks and tables so far
  WordScope borderOf_ = WordScope::None;
  bool inHead_ = true;         // the body has not started
  std::size_t tailKnown_ = 0;  // offset before which no table's tail is left
  bool begun_ = false;         // there has been text
  KeptHead head_;
  KeptItems headItems_;

  int swallow_ = 0;                // fallback characters of a \u still to skip
  bool atText_ = false;            // the last token was text
  bool behindText_ = false;        // so was the token before the present one
  bool wasReset_ = false;          // there has been a \plain
  Reset lastReset_ = Reset::None;  // of the last \plain behind text
  std::size_t resetAt_ = 0;        // the content count there
  bool opened_ = false;            // the last token was {
  bool wasOpened_ = false;         // so was the token before the present one
  bool atStar_ = false;            // the last token was \*
  bool behindStar_ = false;        // so was the token before the current one
  bool starred_ = false;           // the last token was \* directly after {
  bool wasStarred_ = false;        // so was the token before the current one
  std::string bytes_;              // undecoded bytes of a multi-byte page
  std::u16string decoded_;
  bool placingMarker_ = false;
  bool numbering_ = false;   // the marker being read is a list number
  std::string_view marker_;  // the \pntext or \listtext of a paragraph whose text has not come yet
  std::string_view markerWord_;
  ItemKeeper::Index markerIndex_ = 0;
  int markerFallback_ = 1;  // \uc at the marker
};

}  // namespace lumenote
