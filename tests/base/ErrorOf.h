// Which run-time error something raises.
#pragma once
#include "base/RuntimeError.h"

namespace lumenote {

/// The number of the error that `statement` raises, 0 for none.
template <class Statement>
int ErrorOf(Statement statement) {
  try {
    statement();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

}  // namespace lumenote
