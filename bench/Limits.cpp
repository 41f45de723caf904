#include "Limits.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

namespace lumenote {

namespace {

double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double MedianSeconds(const std::function<void()>& act) {
  constexpr int kRuns = 9;
  std::vector<double> seconds;
  for (int run = 0; run < kRuns; ++run) {
    const double start = ProcessorSeconds();
    act();
    seconds.push_back(ProcessorSeconds() - start);
  }
  std::ranges::nth_element(seconds, seconds.begin() + kRuns / 2);
  return seconds[kRuns / 2];
}

}  // namespace

std::size_t CountBackslashes(std::string_view bytes) {
  const char* const end = bytes.data() + bytes.size();
  std::size_t count = 0;
  for (const char* at = bytes.data(); at != nullptr; ++count) {
    at = static_cast<const char*>(std::memchr(at, '\\', static_cast<std::size_t>(end - at)));
    if (at != nullptr) ++at;
  }
  return count - 1;
}

void CopyToFreshMemory(std::u16string_view text) {
  const std::unique_ptr<char16_t[]> copy(new char16_t[text.size()]);
  std::memcpy(copy.get(), text.data(), text.size() * sizeof(char16_t));
  benchmark::DoNotOptimize(copy.get()[text.size() / 2]);
}

std::size_t ReplaceByCopy(std::u16string_view text, std::u16string_view needle,
                          std::u16string_view replacement) {
  std::u16string result;
  result.reserve(text.size() * 2);
  std::size_t count = 0;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(needle, from)) != text.npos; ++count) {
    result.append(text, from, at - from).append(replacement);
    from = at + needle.size();
  }
  result.append(text, from);
  benchmark::DoNotOptimize(result[result.size() / 2]);
  return count;
}

void CompareWith(benchmark::State& state, const std::function<void()>& limit) {
  state.counters["of_limit"] =
      benchmark::Counter(MedianSeconds(limit), benchmark::Counter::kIsIterationInvariantRate);
}

}  // namespace lumenote
