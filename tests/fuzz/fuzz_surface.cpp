// Any bytes as acts on a surface, against a naive model.
#include "surface/RandomActs.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  GTEST_FLAG_SET(throw_on_failure, true);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lumenote::RandomActs({data, size}).Play();
  return 0;
}
