// Acts of all kinds on a surface: text, bold letters and history are those of a naive model.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>
#include <utility>
#include <vector>

#include "base/Characters.h"
#include "document/Model.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

/// Reads acts out of bytes and carries them out. The models of the history have the numbers of
/// formats as the surface holds them; in what an act is expected to make, a character's number only
/// says whether it is bold.
class Player : UserBench {
 public:
  explicit Player(FuzzedDataProvider& bytes) : bytes_(bytes), now_(Held()) {}

  void Play() {
    constexpr Position kMostText = 4000;
    while (bytes_.remaining_bytes() > 0) {
      Act();
      if (now_.Length() > kMostText) Load({});
      Check(Held() == now_);
      Check(surface.CanUndo() != history_.empty() && surface.CanRedo() != redo_.empty());
      Check(!InsidePair(surface.Anchor()) && !InsidePair(surface.Caret()));
    }
    LineTable fresh(surface.Content(), breaker);
    Check(surface.LineFromChar(surface.Caret()) == fresh.LineOf(surface.Caret()));
    surface.TextRTF(surface.TextRTF());
    Check(surface.Text() == now_.text);
  }

 private:
  struct Step {
    Model before;
    bool merges = false;   // perhaps, with its neighbours
    Selection selected{};  // before it
  };

  void Act() {
    static constexpr void (Player::*kActs[])() = {
        &Player::Select, &Player::Put,  &Player::Type, &Player::Break, &Player::Bold,
        &Player::Erase,  &Player::Move, &Player::Find, &Player::Undo,  &Player::Redo,
        &Player::Group,  &Player::Line, &Player::Open};
    selected_ = surface.Selected();
    (this->*bytes_.PickValueInArray(kActs))();
  }
  Position Place() { return bytes_.ConsumeIntegralInRange<Position>(0, now_.Length() + 1); }
  std::u16string Text() {
    static constexpr std::u16string_view kPieces[] = {
        u"",       u"a",      u"\r\n",       u"un été, là",   u"É",  u"\r", u"\n",        u"\v",
        u"\xD834", u"\xDD1E", u"\U0001D11E", u"a\r\nb\r\n\n", u"aa", u" ",  u"été\r\r\n", u"E"};
    const std::u16string_view piece = bytes_.PickValueInArray(kPieces);
    std::u16string text(piece);
    const bool large = bytes_.ConsumeIntegral<std::uint8_t>() < 4;
    for (int i = 0; large && i < 400; ++i) text += piece;
    return text;
  }

  void Select() {
    const Position anchor = Place();
    surface.UserSelect(anchor, bytes_.ConsumeBool() ? anchor : Place());
  }
  void Put() {
    const std::u16string text = Text();
    const Model next = Replaced(surface.Selected(), WithCrLf(text));
    surface.SelText(text);
    Expect(next);
  }
  void Type() {
    const std::u16string text = ReplaceEvery(ReplaceEvery(Text(), u"\r", u""), u"\n", u"");
    const Model next = text.empty() ? Seen(now_) : Replaced(surface.Selected(), text);
    surface.UserType(text);
    Expect(next, true);
  }
  void Break() {
    const Model next = Replaced(surface.Selected(), u"\r\n");
    surface.UserType(u"\r\n");
    Check(Seen(Held()) == next);
    Remember(Held(), true);
  }
  void Bold() {
    const Selection range = surface.Selected();
    const bool on = bytes_.ConsumeBool();
    Model next = Seen(now_);
    std::fill_n(next.characters.begin() + range.start, range.Length(), on);
    if (range.Length() > 0 && range.end == now_.Length()) next.mark.character = on;
    surface.SelBold(on);
    Check(range.Length() == 0 || surface.SelBold() == on);
    Expect(next);
  }
  void Erase() {
    const bool back = bytes_.ConsumeBool();
    Selection range = surface.Selected();
    if (range.Length() == 0 && back) range.start = std::max(range.start - 1, 0);
    if (range.Length() == 0 && !back) range.end = std::min(range.end + 1, now_.Length());
    range = {range.start - InsidePair(range.start), range.end + InsidePair(range.end)};
    surface.UserKey({.name = back ? KeyName::BackSpace : KeyName::Delete});
    Expect(Replaced(range, {}), true);
  }
  void Move() {
    const Selection range = surface.Selected();
    const bool copy = bytes_.ConsumeBool();
    Position target = std::min(Place(), now_.Length());
    target -= InsidePair(target);
    surface.UserDrop(target, copy);
    const bool inside = target > range.start && target < range.end;
    const bool edge = target == range.start || target == range.end;
    if (range.Length() == 0 || inside || (edge && !copy)) return;
    const Model seen = Seen(now_);
    Model moved;
    moved.Add(seen, range.start, range.end);
    Model next = seen.Replaced(target, target, moved);
    const Position shift = target <= range.start ? range.Length() : 0;
    if (!copy) next = next.Replaced(range.start + shift, range.end + shift, {});
    Check(Seen(Held()) == next);
    Remember(Held());
  }
  void Find() {
    const std::u16string text = Text();
    const Position start = Place();
    const bool matchCase = bytes_.ConsumeBool();
    Check(surface.Find(text, start, matchCase ? kFindMatchCase : 0) ==
          Found(text, start, matchCase));
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
    history_.push_back({before});
  }
  void Line() { surface.LineFromChar(Place()); }
  void Open() {
    if (bytes_.ConsumeBool()) return Load(Text());
    LoadRtf();
  }
  void Load(const std::u16string& text) {
    surface.Text(text);
    history_.clear();
    redo_.clear();
    now_ = Held();
    Check(now_.text == WithCrLf(text));
  }
  /// A note with more in its source than its text shows.
  void LoadRtf() {
    static constexpr std::u16string_view kBodies[] = {
        uR"(a\sect\sectd\cols2 bc\par\page{\*\bkmkstart k}d{\*\bkmkend k}{\pict 01})",
        uR"(a\par\trowd\cellx9\intbl b\par c\cell{\field{\fldrslt d}}\cell\row\pard e)",
        uR"({\listtext 1.\tab}\ls1 a\page\par{\field{\fldrslt\b b{\field{\fldrslt c}}}})"};
    Load({});
    surface.TextRTF(u"{\\rtf1 " + std::u16string(bytes_.PickValueInArray(kBodies)) + u"}");
    now_ = Held();
  }
  /// One step of the surface's may be several here, where runs of typing or deletion are one.
  void Undo() {
    surface.Undo();
    if (history_.empty()) return;
    redo_.push_back(now_);
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
    history_.push_back({std::exchange(now_, std::move(redo_.back()))});
    redo_.pop_back();
  }

  /// What changes nothing, not even what is not seen, is no step.
  void Expect(const Model& next, bool merges = false) {
    Model held = Held();
    Check(Seen(held) == next);
    if (held != now_) Remember(std::move(held), merges);
  }
  void Remember(Model next, bool merges = false) {
    history_.push_back({std::exchange(now_, std::move(next)), merges, selected_});
    redo_.clear();
  }
  /// Text put in is bold like the first letter it replaces, else as the surface says.
  Model Replaced(Selection range, std::u16string_view text) const {
    const Model seen = Seen(now_);
    const bool bold = range.Length() > 0 ? seen.characters[range.start] : *surface.SelBold();
    Model piece;
    piece.Add(text, bold, 0);
    return seen.Replaced(range.start, range.end, piece);
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

  FuzzedDataProvider& bytes_;
  Model now_;
  std::vector<Step> history_;
  std::vector<Model> redo_;
  Selection selected_;  // before the act at hand
};

}  // namespace
}  // namespace lumenote

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  GTEST_FLAG_SET(throw_on_failure, true);  // of what the model expects of every leaf
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider bytes(data, size);
  lumenote::Player(bytes).Play();
  return 0;
}
