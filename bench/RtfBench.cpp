// Loading and saving notes as RTF, beside a bare scan of the same bytes; what a loaded note holds.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <string>

#include "Limits.h"
#include "Notes.h"
#include "rtf/read/Reader.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

void CountBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

void ScanRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const std::string& rtf = NoteSource(shape, bytes);
  for (auto _ : state) benchmark::DoNotOptimize(CountBackslashes(rtf));
  CountBytes(state, rtf.size());
}

void CompareWithScan(benchmark::State& state, const std::string& rtf) {
  CompareWith(state, [&] { benchmark::DoNotOptimize(CountBackslashes(rtf)); });
  CountBytes(state, rtf.size());
}

void LoadRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const std::string& rtf = NoteSource(shape, bytes);
  for (auto _ : state) {
    FormatTables formats;
    benchmark::DoNotOptimize(ReadRtf(rtf, formats, RtfTarget::Document));
  }
  CompareWithScan(state, rtf);
}

std::size_t BytesInUse() {
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

void Memory(benchmark::State& state, NoteShape shape, int bytes) {
  const std::string& rtf = NoteSource(shape, bytes);
  for (auto _ : state) {
    const std::size_t before = BytesInUse();
    FormatTables formats;
    const Fragment note = ReadRtf(rtf, formats, RtfTarget::Document);
    state.counters["B/char"] = static_cast<double>(BytesInUse() - before) / note.Length();
  }
}

void SaveRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const Document document = NoteDocument(shape, bytes);
  std::string rtf;
  for (auto _ : state) {
    rtf.clear();
    WriteRtf(document, [&](std::string_view piece) { rtf += piece; });
  }
  CompareWithScan(state, rtf);
}

void Register(NoteShape shape, int bytes, const std::string& note) {
  const auto add = [&](const char* name, auto function) {
    benchmark::RegisterBenchmark((std::string(name) + "/" + note).c_str(), function, shape, bytes)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.5);
  };
  add("ScanRtf", ScanRtf);
  add("LoadRtf", LoadRtf);
  add("SaveRtf", SaveRtf);
  add("Memory", Memory);
}

const bool kRegistered = (ForEachNote(Register), true);

}  // namespace
}  // namespace lumenote
