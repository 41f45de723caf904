// Loading and saving notes as RTF, beside a bare scan of the same bytes: the limit to measure
// against.
#include <benchmark/benchmark.h>
#include <cstring>
#include <string>

#include "Notes.h"
#include "rtf/Reader.h"
#include "rtf/Writer.h"

namespace lumenote {
namespace {

void CountBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

/// Finds every backslash.
void ScanRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const std::string& rtf = RtfNote(shape, bytes);
  const char* const end = rtf.data() + rtf.size();
  for (auto _ : state) {
    std::size_t count = 0;
    for (const char* at = rtf.data(); at != nullptr; ++count) {
      at = static_cast<const char*>(std::memchr(at, '\\', static_cast<std::size_t>(end - at)));
      if (at != nullptr) ++at;
    }
    benchmark::DoNotOptimize(count);
  }
  CountBytes(state, rtf.size());
}

void LoadRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const std::string& rtf = RtfNote(shape, bytes);
  for (auto _ : state) {
    FormatTables formats;
    benchmark::DoNotOptimize(ReadRtf(rtf, formats, RtfTarget::Document));
  }
  CountBytes(state, rtf.size());
}

void SaveRtf(benchmark::State& state, NoteShape shape, int bytes) {
  const Document document = NoteDocument(shape, bytes);
  std::string rtf;
  for (auto _ : state) {
    rtf.clear();
    WriteRtf(document, [&](std::string_view piece) { rtf += piece; });
  }
  CountBytes(state, rtf.size());
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
}

const bool kRegistered = (ForEachNote(Register), true);

}  // namespace
}  // namespace lumenote
