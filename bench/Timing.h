// Processor time of what is measured.
#pragma once
#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace lumenote {

inline double Milliseconds(std::clock_t since) {
  return 1e3 * static_cast<double>(std::clock() - since) / CLOCKS_PER_SEC;
}

inline double Milliseconds(const std::function<void()>& act) {
  const std::clock_t start = std::clock();
  act();
  return Milliseconds(start);
}

/// The upper one of an even count; of one value at least.
inline double Median(std::vector<double> times) {
  std::ranges::sort(times);
  return times[times.size() / 2];
}

}  // namespace lumenote
