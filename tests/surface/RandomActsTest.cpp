// Thousands of random acts, the same on every run.
#include <random>

#include "surface/RandomActs.h"

namespace lumenote {
namespace {

TEST(RandomActs, AgreeWithTheModel) {
  for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(2000);
    std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(random()); });
    RandomActs(bytes).Play();
  }
}

}  // namespace
}  // namespace lumenote
