// Statements whose run-time errors are made or ignored.
#pragma once
#include <new>

#include "lumenote/RuntimeError.h"

namespace lumenote {

/// Runs a statement and makes a run-time error of a failed allocation.
template <class Statement>
void WithMemoryErrors(Statement statement) {
  try {
    statement();
  } catch (const std::bad_alloc&) {
    throw RuntimeError(ErrorNumber::OutOfMemory);
  }
}

/// Runs one statement whose run-time error is ignored; the caller goes on with its next one.
/// Returns whether the statement went through.
template <class Statement>
bool IgnoringErrors(Statement statement) {
  try {
    statement();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace lumenote
