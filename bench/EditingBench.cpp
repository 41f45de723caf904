// Commands over a whole note: search and replace on 10 MB, the clean-up of a scanned page.
#include <benchmark/benchmark.h>

#include "Notes.h"
#include "ScannedPage.h"
#include "backends/headless/FixedLayouter.h"
#include "base/Strings.h"
#include "ocr/Cleanup.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"
#include "surface/editing/SourceBytes.h"

namespace lumenote {
namespace {

constexpr int kLargeNote = 10'000'000;  // bytes of RTF
constexpr int kMatches = 100;

struct Desk {
  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedBreaker breaker{5000};
  DocumentSurface surface{clipboard, files, breaker};
};

void LoadLargeNote(Desk& desk) {
  desk.surface.TextRTF(WidenSource(NoteSource(NoteShape::Rich, kLargeNote)));
}

/// To the end of the note, in vain, case ignored.
void FindNothing(benchmark::State& state) {
  Desk desk;
  LoadLargeNote(desk);
  for (auto _ : state) benchmark::DoNotOptimize(desk.surface.Find(u"Zygène", 0, 0));
  state.SetBytesProcessed(std::int64_t{desk.surface.Content().Length()} * state.iterations());
}

void ReplaceAll(benchmark::State& state) {
  Desk desk;
  LoadLargeNote(desk);
  const Position step = desk.surface.Content().Length() / kMatches;
  for (int match = 0; match < kMatches; ++match) {
    desk.surface.SelStart(match * step);
    desk.surface.SelText(u"Zygène");
  }
  std::u16string_view sought = u"zygène";
  std::u16string_view other = u"phalène";
  for (auto _ : state) {
    desk.surface.ReplaceAll(sought, other, 0, kMatches);
    std::swap(sought, other);
  }
}

void CleanUp(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Desk desk;
    desk.files.Write(kCorrectionsPath, Corrections());
    desk.surface.Text(ScannedPage());
    state.ResumeTiming();
    NettoyerTexte(desk.surface, desk.files, kCorrectionsPath);
  }
}

BENCHMARK(FindNothing)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplaceAll)->Unit(benchmark::kMillisecond);
BENCHMARK(CleanUp)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumenote
