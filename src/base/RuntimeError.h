// Wrappers that translate or ignore the run-time errors of a statement.
#pragma once
#include <new>

#include "lumenote/RuntimeError.h"

namespace lumenote {

/// Runs a statement; a failed allocation becomes a run-time error.
template <class Statement>
void TranslateBadAlloc(Statement statement) {
  try {
    statement();
  } catch (const std::bad_alloc&) {
    throw RuntimeError(ErrorNumber::OutOfMemory);
  }
}

/// Runs a statement and ignores its run-time error, so that the caller goes on with the next
/// statement. Returns whether the statement succeeded.
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
