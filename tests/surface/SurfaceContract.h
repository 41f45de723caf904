// The fixture of what hosts and forms may rely on in a surface.
#pragma once
#include <functional>
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "surface/UserBench.h"

namespace lumenote {

class SurfaceContract : public ::testing::Test, protected UserBench {
 protected:
  SurfaceContract() {
    s.OnChange([this] { ++changes_; });
  }
  /// Counts the notifications since the last call.
  int Changes() { return std::exchange(changes_, 0); }

  RichTextSurface& s = surface;

 private:
  int changes_ = 0;
};

}  // namespace lumenote
