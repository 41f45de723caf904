// The edge to COM hosts: no exception passes it.
#pragma once
#include <exception>
#include <new>

#include "Ole.h"
#include "lumenote/RuntimeError.h"

namespace lumenote {

/// Gives the calling thread the error's description, with the member as its source, and returns the
/// result code that scripting languages show as the error's number.
HRESULT Report(const RuntimeError& error);

/// Runs a function that returns a result code; what it raises becomes one. The description of an
/// earlier error that nobody has asked for is forgotten.
template <class Function>
HRESULT Guarded(Function function) {
  SetErrorInfo(0, nullptr);
  try {
    return function();
  } catch (const RuntimeError& error) {
    return Report(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace lumenote
