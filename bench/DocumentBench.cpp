// Editing, formatting, searching and reading notes of every shape and size.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <random>

#include "Limits.h"
#include "Notes.h"
#include "document/Search.h"
#include "document/undo/Undo.h"

namespace lumenote {
namespace {

constexpr int kEdits = 10'000;
constexpr std::u16string_view kNeedle = u"on";
constexpr std::u16string_view kReplacement = u"%%%";

/// A note open for editing.
struct Desk {
  explicit Desk(const Document& note) : document(note) {}

  void Insert(Position at, char16_t c) {
    history.Begin(UndoKind::Typing, {at, at});
    history.Apply(at, at,
                  PlainFragment({&c, 1}, document.CharFormatAt(at - 1), document.Mark().paragraph));
    history.End({at + 1, at + 1});
  }
  void InsertAtRandom() {
    std::mt19937 random(1);
    const auto length = static_cast<unsigned>(document.Length());
    for (int i = 0; i < kEdits; ++i) Insert(static_cast<Position>(random() % length), u'x');
  }
  void TypeInTheMiddle() {
    const Position middle = document.SnapBackward(document.Length() / 2);
    for (Position i = 0; i < kEdits; ++i) Insert(middle + i, u"abcde "[i % 6]);
  }
  void ReplaceAll() {
    auto result = *ReplaceAllText(document, kNeedle, kReplacement, {.matchCase = true},
                                  document.Length(), [](CharId format) { return format; });
    Apply(result.range, std::move(result.fragment));
  }
  void MakeBold() {
    FormatTables& formats = document.Formats();
    const auto bold = [&](CharId id) {
      CharFormat format = formats.characters[id];
      format.effects |= kBold;
      return formats.characters.Intern(format);
    };
    Apply({0, document.Length()}, *document.MapFormats(0, document.Length(), bold, {}, true));
  }
  void Apply(Selection range, Fragment fragment) {
    history.Begin(UndoKind::Unknown, {});
    history.Apply(range.start, range.end, std::move(fragment));
    history.End({});
  }
  void UndoAll() {
    while (history.Undo()) continue;
  }

  Document document;
  UndoHistory history{document};
};

void CountOperations(benchmark::State& state, double each) {
  using benchmark::Counter;
  state.counters["op"] = Counter(each, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

/// One of the two acts on a fresh desk is measured, the other one made around it.
using Act = void (Desk::*)();
void Measure(benchmark::State& state, NoteShape shape, int bytes, Act before, Act act, int count) {
  for (auto _ : state) {
    state.PauseTiming();
    auto desk = std::make_unique<Desk>(NoteDocument(shape, bytes));
    if (before != nullptr) ((*desk).*before)();
    state.ResumeTiming();
    ((*desk).*act)();
    state.PauseTiming();
    desk.reset();
    state.ResumeTiming();
  }
  CountOperations(state, count);
}

std::int64_t SizeOf(const std::u16string& text) {
  return static_cast<std::int64_t>(text.size() * sizeof(char16_t));
}

void GetText(benchmark::State& state, NoteShape shape, int bytes) {
  const Document note = NoteDocument(shape, bytes);
  const std::u16string text = note.Text(0, note.Length());
  for (auto _ : state) benchmark::DoNotOptimize(note.Text(0, note.Length()));
  state.SetBytesProcessed(SizeOf(text) * state.iterations());
  CompareWith(state, [&] { CopyToFreshMemory(text); });
}

void CopyText(benchmark::State& state, NoteShape shape, int bytes) {
  const Document note = NoteDocument(shape, bytes);
  const std::u16string text = note.Text(0, note.Length());
  for (auto _ : state) CopyToFreshMemory(text);
  state.SetBytesProcessed(SizeOf(text) * state.iterations());
}

void ReplaceAll(benchmark::State& state, NoteShape shape, int bytes) {
  std::u16string text;
  {
    const Document note = NoteDocument(shape, bytes);
    text = note.Text(0, note.Length());
  }
  Measure(state, shape, bytes, nullptr, &Desk::ReplaceAll, 1);
  std::size_t hits = 0;
  CompareWith(state, [&] { hits = ReplaceByCopy(text, kNeedle, kReplacement); });
  state.counters["hits"] = static_cast<double>(hits);
}

/// A needle that is nowhere and begins with the most frequent letter.
void Search(benchmark::State& state, NoteShape shape, int bytes, SearchOptions options) {
  const Document note = NoteDocument(shape, bytes);
  for (auto _ : state) {
    benchmark::DoNotOptimize(FindText(note, u"entomologie", 0, note.Length(), options));
  }
  CountOperations(state, 1);
}

void Register(NoteShape shape, int bytes, const std::string& note) {
  const auto add = [&](const char* name, auto function, auto... arguments) {
    benchmark::RegisterBenchmark((std::string(name) + "/" + note).c_str(), function, shape, bytes,
                                 arguments...)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
  };
  const auto measure = [&](const char* name, Act before, Act act, int count) {
    add(name, Measure, before, act, count);
  };
  add("GetText", GetText);
  add("CopyText", CopyText);
  measure("InsertRandom", nullptr, &Desk::InsertAtRandom, kEdits);
  measure("UndoRandom", &Desk::InsertAtRandom, &Desk::UndoAll, kEdits);
  measure("Typing", nullptr, &Desk::TypeInTheMiddle, kEdits);
  measure("UndoTyping", &Desk::TypeInTheMiddle, &Desk::UndoAll, 1);
  add("ReplaceAll", ReplaceAll);
  measure("UndoReplaceAll", &Desk::ReplaceAll, &Desk::UndoAll, 1);
  measure("BoldAll", nullptr, &Desk::MakeBold, 1);
  measure("UndoBoldAll", &Desk::MakeBold, &Desk::UndoAll, 1);
  add("SearchFolded", Search, SearchOptions{});
  add("SearchExact", Search, SearchOptions{.matchCase = true});
}

const bool kRegistered = (ForEachNote(Register), true);

}  // namespace
}  // namespace lumenote
