// Acts of all kinds on a surface: text, bold letters and history are those of a naive model.
#pragma once
#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "base/Characters.h"
#include "document/KeptParts.h"
#include "document/Model.h"
#include "document/tables/CellTexts.h"
#include "document/tables/CopiedRows.h"
#include "document/tables/TableRow.h"
#include "surface/Choices.h"
#include "surface/UserBench.h"

namespace lumenote {

/// Carries out the acts that the bytes choose, on a surface and on a naive model. The models of the
/// history have the numbers of formats as the surface holds them; in what an act is expected to
/// make, a character's number only says whether it is bold.
class RandomActs : UserBench {
 public:
  explicit RandomActs(std::span<const std::uint8_t> bytes) : bytes_(bytes), now_(Held()) {
    surface.View(&view);
    surface.OnChange([this] { ++heard_; });
  }

  void Play() {
    constexpr Position kMaxText = 9000;
    Load(Text(2));
    while (!bytes_.AtEnd() && !testing::Test::HasFailure()) {
      const Model before = now_;
      view.changes.clear();
      heard_ = told_ = 0;
      Act();
      EXPECT_TRUE(Held() == now_);
      CheckHeard(before);
      if (now_.Length() > kMaxText) Load({});
      EXPECT_TRUE(surface.CanUndo() != history_.empty() && surface.CanRedo() != redo_.empty());
      EXPECT_TRUE(!InsidePair(surface.Anchor()) && !InsidePair(surface.Caret()));
      EXPECT_TRUE(surface.SelText() == now_.text.substr(surface.SelStart(), surface.SelLength()));
      CheckParagraphAt(std::min(Place(), now_.Length()));
    }
    surface.TextRTF(surface.TextRTF());
    EXPECT_TRUE(surface.Text() == now_.text);
  }

 private:
  struct Step {
    Model before;
    bool merges = false;   // perhaps, with its neighbours
    Selection selected{};  // before it
    Selection left{};      // behind it
  };

  void Act() {
    static constexpr void (RandomActs::*kActs[])() = {
        &RandomActs::Select, &RandomActs::Put,   &RandomActs::Type,  &RandomActs::Break,
        &RandomActs::Bold,   &RandomActs::Erase, &RandomActs::Move,  &RandomActs::Find,
        &RandomActs::Undo,   &RandomActs::Redo,  &RandomActs::Group, &RandomActs::Line,
        &RandomActs::Open,   &RandomActs::Format};
    selected_ = surface.Selected();
    (this->*bytes_.Of(kActs))();
  }
  /// View and handler hear of every change, the view of all that has changed.
  void CheckHeard(const Model& before) {
    EXPECT_TRUE((heard_ > 0 && !view.changes.empty()) || before == now_);
    if (view.changes.size() != 1) return;
    const auto [at, removed, inserted] = view.changes.front();
    EXPECT_TRUE(Part(before, 0, at) == Part(now_, 0, at));
    EXPECT_TRUE(Part(before, at + removed, before.Length()) ==
                Part(now_, at + inserted, now_.Length()));
  }
  static Model Part(const Model& whole, Position from, Position to) {
    Model part;
    part.Add(whole, from, to);
    return part;
  }
  void CheckParagraphAt(Position at) const {
    const Document& document = surface.Content();
    const bool inside = at < now_.Length() && now_.text[at] == u'\n';
    const std::u16string_view before = std::u16string_view(now_.text).substr(0, at);
    const Position paragraph = document.ParagraphOf(at);
    const std::size_t end = std::min(now_.text.find(u'\r', at - inside), now_.text.size());
    EXPECT_EQ(paragraph, CountBreaks(before) - inside);
    EXPECT_EQ(document.ParagraphStart(paragraph),
              static_cast<Position>(before.rfind(u'\n') + 1));  // npos + 1 is 0
    EXPECT_EQ(document.ParagraphEnd(paragraph), static_cast<Position>(end));
    EXPECT_EQ(document.ParaFormatAt(at),
              end < now_.text.size() ? now_.paragraphs[end] : now_.mark.paragraph);
    EXPECT_EQ(document.CharFormatAt(at),
              at < now_.Length() ? now_.characters[at] : now_.mark.character);
  }

  Position Place() { return bytes_.UpTo(now_.Length() + 1); }
  /// One in `large` is longer than a leaf.
  std::u16string Text(Position large = 64) {
    static constexpr std::u16string_view kPieces[] = {
        u"",       u"a",      u"\r\n",       u"un été, là",   u"É",  u"\r", u"\n",        u"\v",
        u"\xD834", u"\xDD1E", u"\U0001D11E", u"a\r\nb\r\n\n", u"aa", u" ",  u"été\r\r\n", u"E"};
    const std::u16string_view piece = bytes_.Of(kPieces);
    std::u16string text(piece);
    const int times = bytes_.Below(large) == 0 ? 600 : 0;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
  }

  void Select() {
    const Position anchor = Place();
    surface.UserSelect(anchor, bytes_.Coin() ? anchor : Place());
  }
  void Put() {
    const std::u16string text = Text();
    const std::u16string clean = WithCrLf(text);
    const Selection range = surface.Selected();
    const std::vector<ReplacedPart> parts = CutAroundKept(surface.Content(), range, clean);
    Model next = parts.size() == 1 ? ByUser(range, clean) : Seen(now_);
    if (parts.size() > 1) {
      for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        Model piece;
        piece.Add(part->text, Seen(now_).characters[range.start], 0);
        next = next.Replaced(part->range.start, part->range.end, piece);
      }
    }
    surface.SelText(text);
    const bool same = clean == now_.text.substr(range.start, range.Length()) && Held() == now_;
    Expect(same ? Seen(now_) : next);
  }
  void Type() {
    const std::u16string text = ReplaceEvery(ReplaceEvery(Text(), u"\r", u""), u"\n", u"");
    const Model next = text.empty() ? Seen(now_) : ByUser(surface.Selected(), text);
    surface.UserType(text);
    Expect(next, true);
  }
  void Break() {
    const Model next = ByUser(surface.Selected(), u"\r\n");
    surface.UserType(u"\r\n");
    EXPECT_TRUE(Seen(Held()) == next);
    Remember(Held(), true);
  }
  void Bold() {
    const Selection range = surface.Selected();
    const bool on = bytes_.Coin();
    Model next = Seen(now_);
    std::fill_n(next.characters.begin() + range.start, range.Length(), on);
    if (range.Length() > 0 && range.end == now_.Length()) next.mark.character = on;
    surface.SelBold(on);
    EXPECT_TRUE(range.Length() == 0 || surface.SelBold() == on);
    Expect(next);
  }
  /// What the text does not show.
  void Format() {
    static constexpr void (*kSetters[])(DocumentSurface&, Position) = {
        [](DocumentSurface& s, Position choice) { s.SelAlignment(choice); },
        [](DocumentSurface& s, Position choice) { s.SelIndent(choice * 150); },
        [](DocumentSurface& s, Position choice) { s.SelFontSize(10.0F + choice); },
        [](DocumentSurface& s, Position choice) { s.SelColor(choice); },
        [](DocumentSurface& s, Position choice) { s.SelCharOffset(choice * 60); },
        [](DocumentSurface& s, Position choice) { s.SelFontName(choice ? u"Symbol" : u"Arial"); }};
    bytes_.Of(kSetters)(surface, bytes_.UpTo(2));
    Expect(Seen(now_));
  }
  void Erase() {
    const bool back = bytes_.Coin();
    Selection range = surface.Selected();
    if (range.Length() == 0 && back) range.start = std::max(range.start - 1, 0);
    if (range.Length() == 0 && !back) range.end = std::min(range.end + 1, now_.Length());
    range = {range.start - InsidePair(range.start), range.end + InsidePair(range.end)};
    const Selection cell = CellAround(surface.Content(), surface.Caret());
    if (surface.Selected().Length() == 0)
      range = {std::max(range.start, cell.start), std::min(range.end, cell.end)};
    const Model next = surface.Selected().Length() > 0 ? ByUser(range, {}) : Replaced(range, {});
    surface.UserKey({.name = back ? KeyName::BackSpace : KeyName::Delete});
    Expect(next, true);
  }
  void Move() {
    const Selection range = surface.Selected();
    const bool copy = bytes_.Coin();
    Position target = std::min(Place(), now_.Length());
    target -= InsidePair(target);
    const Model left = ByUser(range, {});
    const Model seen = Seen(now_);
    const auto [source, copied] = WithRowEnd(surface.Content(), range);
    const auto row = RowAround(source, target);
    const CopiedRows rows = FindCopiedRows(source.Copy(copied.start, copied.end), source.Formats());
    const Position place = rows.any && row ? row->start : target;
    const Position paragraph = source.ParagraphStart(source.ParagraphOf(place));
    surface.UserDrop(target, copy);
    const bool inside = target > range.start && target < range.end;
    const bool edge = target == range.start || target == range.end;
    const bool inRows = place != target && place > range.start && place < range.end;
    if (range.Length() == 0 || inside || (edge && !copy) || inRows) return;
    Model moved;
    if (rows.first && place > paragraph) moved.Add(u"\r\n", seen.characters[range.start], 0);
    const Position before = moved.Length();
    moved.Add(Seen(ModelOf(source.Leaves(), source.Mark())), copied.start, copied.end);
    const Position behind = moved.Length();
    if (rows.any && row && !rows.last) moved.Add(u"\r\n", seen.characters[range.start], 0);
    const bool shrinks = !copy && place > range.start;
    const Position start = place - (shrinks ? seen.Length() - left.Length() : 0);
    const Model next = (copy ? seen : left).Replaced(start, start, moved);
    const Document& document = surface.Content();  // halves of pairs may have met
    EXPECT_EQ(surface.Selected(), (Selection{document.SnapBackward(start + before),
                                             document.SnapForward(start + behind)}));
    EXPECT_TRUE(surface.UndoType() == UndoKind::DragDrop);
    EXPECT_TRUE(Seen(Held()) == next);
    Remember(Held());
  }
  void Find() {
    const std::u16string text = Text();
    const Position start = Place();
    const bool matchCase = bytes_.Coin();
    const Position found = Found(text, start, matchCase);
    EXPECT_TRUE(surface.Find(text, start, matchCase ? kFindMatchCase : 0) == found);
    if (found >= 0) {
      EXPECT_EQ(surface.Selected(), (Selection{found, found + static_cast<Position>(text.size())}));
    }
  }
  void Group() {
    const EditGroup group(surface);
    const std::size_t steps = history_.size();
    const Model before = now_;
    Put();
    Select();
    Bold();
    if (history_.size() == steps) return;
    history_.resize(steps);
    history_.push_back({.before = before, .left = surface.Selected()});
  }
  /// What is known of the lines is what a new table says.
  void Line() {
    LineTable fresh(surface.Content(), breaker);
    const Position at = std::min(Place(), now_.Length());
    EXPECT_EQ(surface.Lines().LineAt(at), fresh.LineAt(at));
    const std::int32_t line = fresh.LineOf(at);
    EXPECT_EQ(surface.LineFromChar(at), line);
    for (const std::int32_t limit : {line / 2, line, line + 1})
      EXPECT_EQ(LineTable(surface.Content(), breaker).LineOf(at, limit), std::min(line, limit));
    EXPECT_EQ(LineTable(surface.Content(), breaker).LineStart(line), fresh.LineAt(at).start);
  }
  void Open() {
    if (bytes_.Below(4) > 0) return;
    bytes_.Coin() ? LoadRtf() : Load(Text(2));
  }
  void Load(const std::u16string& text) {
    surface.Text(text);
    history_.clear();
    redo_.clear();
    now_ = Held();
    EXPECT_TRUE(now_.text == WithCrLf(text));
  }
  /// A note with more in its source than its text shows.
  void LoadRtf() {
    static constexpr std::u16string_view kBodies[] = {
        uR"(a\sect\sectd\cols2 bc\par\page{\*\bkmkstart k}d{\*\bkmkend k}{\pict 01})",
        uR"(a\par\trowd\cellx9\intbl b\par c\cell{\field{\fldrslt d}}\cell\row\pard e)",
        uR"({\trowd\cellx9\cellx19\intbl a\cell b\par\itap2 c\nestcell d\nestcell{\*\nesttableprops)"
        uR"(\trowd\cellx3\cellx5\nestrow}\itap1 e\cell\row\intbl f\cell g\cell\row\pard h})",
        uR"({\listtext 1.\tab}\ls1 a\page\par{\field{\fldrslt\b b{\field{\fldrslt c}}}})"};
    Load({});
    surface.TextRTF(u"{\\rtf1 " + std::u16string(bytes_.Of(kBodies)) + u"}");
    now_ = Held();
  }
  /// One step of the surface's may be several here, where runs of typing or deletion are one.
  void Undo() {
    surface.Undo();
    if (history_.empty()) return;
    redo_.emplace_back(now_, history_.back().left);
    const Model held = Held();
    for (bool more = true; more;) {
      const bool merges = history_.back().merges;
      now_ = std::move(history_.back().before);
      const bool reached = now_ == held && history_.back().selected == surface.Selected();
      history_.pop_back();
      more = !reached && merges && !history_.empty() && history_.back().merges;
    }
  }
  void Redo() {
    surface.Redo();
    if (redo_.empty()) return;
    auto& [model, left] = redo_.back();
    EXPECT_EQ(surface.Selected(), left);
    history_.push_back({.before = std::exchange(now_, std::move(model)), .left = left});
    redo_.pop_back();
  }

  /// What changes nothing, not even what is not seen, is no step, and nobody hears of it.
  void Expect(const Model& next, bool merges = false) {
    Model held = Held();
    EXPECT_TRUE(Seen(held) == next);
    if (held != now_) return Remember(std::move(held), merges);
    EXPECT_EQ(heard_, told_);
  }
  void Remember(Model next, bool merges = false) {
    told_ = heard_;
    history_.push_back(
        {std::exchange(now_, std::move(next)), merges, selected_, surface.Selected()});
    redo_.clear();
  }
  /// Text put in is bold like the first letter it replaces, else as the surface says.
  Model Replaced(Selection range, std::u16string_view text) const {
    return Replaced(std::vector{range}, text);
  }
  /// The user leaves the cells of tables where they are.
  Model ByUser(Selection range, std::u16string_view text) const {
    const auto remains = text.empty() ? Remains::Nothing : Remains::Text;
    return Replaced(FindCellTexts(surface.Content(), range, remains).parts, text);
  }
  Model Replaced(const std::vector<Selection>& parts, std::u16string_view text) const {
    const Position start = parts.front().start;
    const Model seen = Seen(now_);
    const bool replaces = parts.back().end > start;
    Model next = seen;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
      next = next.Replaced(part->start, part->end, {});
    Model piece;
    piece.Add(text, replaces ? seen.characters[start] : *surface.SelBold(), 0);
    return next.Replaced(start, start, piece);
  }
  bool InsidePair(Position at) const {
    if (at <= 0 || at >= now_.Length()) return false;
    const std::u16string_view two = std::u16string_view(now_.text).substr(at - 1, 2);
    return two == u"\r\n" || IsPairAt(two, 0);
  }
  Position Found(std::u16string_view text, Position start, bool matchCase) const {
    if (text.empty() || text.front() == u'\n' || IsLowSurrogate(text.front())) return -1;
    if (text.back() == u'\r' || IsHighSurrogate(text.back())) return -1;
    const std::size_t at =
        matchCase ? now_.text.find(text, start) : Lower(now_.text).find(Lower(text), start);
    return at == text.npos ? -1 : static_cast<Position>(at);
  }
  Model Held() const { return ModelOf(surface.Content().Leaves(), surface.Content().Mark()); }
  Model Seen(Model model) const {
    const auto bold = [this](CharId id) {
      return CharId((surface.Content().Formats().characters[id].effects & kBold) != 0);
    };
    std::ranges::transform(model.characters, model.characters.begin(), bold);
    std::ranges::fill(model.paragraphs, 0);
    model.mark = {bold(model.mark.character), 0};
    return model;
  }

  Choices bytes_;
  int heard_ = 0;  // changes, by the handler
  int told_ = 0;   // of these by acts that did change something
  Model now_;
  std::vector<Step> history_;
  std::vector<std::pair<Model, Selection>> redo_;  // what a step makes, and what is selected then
  Selection selected_;                             // before the act at hand
};

}  // namespace lumenote
