// Commands over a whole note: search and replace on 10 MB, the clean-up of a scanned page.
#include <benchmark/benchmark.h>
#include <string>

#include "Notes.h"
#include "backends/headless/FixedBreaker.h"
#include "base/Strings.h"
#include "ocr/Cleanup.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"
#include "surface/TextBytes.h"

namespace lumenote {
namespace {

constexpr int kLargeNote = 10'000'000;  // bytes of RTF
constexpr int kMatches = 100;
constexpr int kPairs = 500;
constexpr std::size_t kPage = 29'000;  // characters
constexpr std::u16string_view kList = u"C:\\ListCorr.txt";

struct Desk {
  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedBreaker breaker{5000};
  DocumentSurface surface{clipboard, files, breaker};
};

void LoadLargeNote(Desk& desk) {
  desk.surface.TextRTF(UnitsOfBytes(RtfNote(NoteShape::Rich, kLargeNote)));
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
    for (Position from = 0; desk.surface.Find(sought, from, 0) != -1;) {
      from = desk.surface.SelStart() + desk.surface.SelLength();
      desk.surface.SelText(other);
    }
    std::swap(sought, other);
  }
}

/// A page with a wrong word in every line, a list that mends them all.
void CleanUp(benchmark::State& state) {
  std::string list;
  std::u16string page;
  for (int pair = 0; pair < kPairs; ++pair) {
    const std::string number = std::to_string(1000 + pair);
    list += "rnot" + number + "=:=mot" + number + "\r\n";
  }
  for (int line = 0; page.size() < kPage; ++line)
    page += u"le rnot" + FromUtf8(std::to_string(1000 + line * 7 % kPairs)) +
            u" ,est  ici;la plante,verte.\r\n";
  for (auto _ : state) {
    state.PauseTiming();
    Desk desk;
    desk.files.Write(kList, list);
    desk.surface.Text(page);
    state.ResumeTiming();
    NettoyerTexte(desk.surface, desk.files, kList);
  }
}

BENCHMARK(FindNothing)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplaceAll)->Unit(benchmark::kMillisecond);
BENCHMARK(CleanUp)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumenote
